#pragma once

#include "chartcontrol/layout/data/DataPointHit.h"
#include "chartcontrol/model/ChartVocabulary.h"

#include <QString>

namespace QmChart6 {

// A chart in words, for tool tips and for people who listen to it; the examples are in English. All data
// points and series must exist.

/// "North", "March: 55" in two lines; in an XY chart the series' two numbers "x; y".
QString TipOf(const ChartVocabulary& words, const Chart& chart, DataPointHit point);

/// "March: 55", or "March: no value"; in an XY chart "x; y".
QString PointWords(const ChartVocabulary& words, const Chart& chart, DataPointHit point);

/// The name of a series, or "Series 2" for one without.
QString SeriesWords(const ChartVocabulary& words, const Chart& chart, int series);

/// One sentence: the kind of chart, how many series and categories, and the range of their values.
QString ChartWords(const ChartVocabulary& words, const Chart& chart);

} // namespace QmChart6

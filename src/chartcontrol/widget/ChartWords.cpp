#include "chartcontrol/widget/ChartWords.h"

#include "base/NumberText.h"
#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/data/XYPairs.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

QString CountedWords(const ChartVocabulary::Counted& words, int count) {
    return (count == 1 ? words.one : words.many).arg(count);
}

QString NumberWords(const ChartVocabulary& words, double value) {
    return std::isnan(value) ? words.noValue : TextOfDouble(value);
}

} // namespace

QString SeriesWords(const ChartVocabulary& words, const Chart& chart, int series) {
    const QString name = LegendName(chart, series).simplified();
    return name.isEmpty() ? words.seriesOfNumber.arg(series) : name;
}

QString PointWords(const ChartVocabulary& words, const Chart& chart, DataPointHit point) {
    if (PairsColumns(chart)) {
        const XYPairs pairs(chart, point.series);
        return QStringLiteral("%1; %2").arg(NumberWords(words, pairs.X(point.category - 1)),
                                            NumberWords(words, pairs.Y(point.category - 1)));
    }
    const QString name = chart.CategoryName(point.category).simplified();
    const QString category = name.isEmpty() ? QString::number(point.category) : name;
    return QStringLiteral("%1: %2").arg(
        category, NumberWords(words, chart.SeriesValues(point.series)[point.category - 1]));
}

QString TipOf(const ChartVocabulary& words, const Chart& chart, DataPointHit point) {
    return SeriesWords(words, chart, point.series) + u'\n' + PointWords(words, chart, point);
}

QString ChartWords(const ChartVocabulary& words, const Chart& chart) {
    int drawn = 0;
    double least = std::numeric_limits<double>::infinity();
    double greatest = -least;
    for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series) {
        if (IsDrawn(chart, series)) ++drawn;
        const Values values = chart.SeriesValues(series);
        for (int i = 0; i < values.count; ++i) {
            if (std::isnan(values[i])) continue;
            least = std::min(least, values[i]);
            greatest = std::max(greatest, values[i]);
        }
    }
    const bool isXY = PairsColumns(chart);
    const QString what =
        words.contents.arg(words.kinds[RowOf(chart.chartType())], CountedWords(words.series, drawn),
                           CountedWords(isXY ? words.points : words.categories, chart.CategoryCount()));
    const QString values =
        least > greatest ? words.withoutValues : words.range.arg(TextOfDouble(least), TextOfDouble(greatest));
    return QStringLiteral("%1, %2.").arg(what, values);
}

} // namespace QmChart6

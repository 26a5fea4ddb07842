#include "chartcontrol/layout/data/DataPointHit.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/data/XYPairs.h"

#include <cmath>

namespace QmChart6 {

bool HasValue(const Chart& chart, DataPointHit point) {
    const bool isThere = point.series >= 1 && point.series <= chart.Plot.SeriesCollection.Count() &&
                         IsDrawn(chart, point.series) && point.category >= 1 &&
                         point.category <= chart.CategoryCount();
    if (!isThere) return false;
    const int index = point.category - 1;
    return PairsColumns(chart) ? XYPairs(chart, point.series).Has(index)
                               : !std::isnan(chart.SeriesValues(point.series)[index]);
}

} // namespace QmChart6

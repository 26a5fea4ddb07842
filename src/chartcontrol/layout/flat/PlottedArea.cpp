#include "chartcontrol/layout/flat/PlottedArea.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

Box PlottedArea::BarOf(int series, int category) const {
    const double left = area.CategoryX(category) + bars.LeftOf(series);
    const BarEnds ends = EndsOf(series, category);
    return {left, std::min(ends.base, ends.end), left + bars.barWidth, std::max(ends.base, ends.end)};
}

BarEnds PlottedArea::EndsOf(int series, int category) const {
    const Values bases = plotted.Base(series);
    const bool onAxis = bases.first == nullptr || bases[category] == 0;
    const double value = plotted.Top(series)[category];
    BarEnds ends{BaseY(series, category), Y(series, value)};
    const double start = bases.first == nullptr ? 0 : bases[category];
    // On the axis, its line takes a pixel.
    const double least = (onAxis ? 2 : 1) / area.pixelsPerPoint;
    if (value == start || std::isnan(ends.end) || std::abs(ends.end - ends.base) >= least) return ends;
    ends.isHairline = true;
    ends.end = value > start ? ends.base - least : ends.base + least;
    return ends;
}

} // namespace QmChart6

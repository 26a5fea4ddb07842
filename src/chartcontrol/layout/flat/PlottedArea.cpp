#include "chartcontrol/layout/flat/PlottedArea.h"

#include <algorithm>

namespace QmChart6 {

Box PlottedArea::BarOf(int series, int category) const {
    const double left = area.CategoryX(category) + bars.LeftOf(series);
    const double y = Y(series, plotted.Top(series)[category]);
    const double base = BaseY(series, category);
    return {left, std::min(y, base), left + bars.barWidth, std::max(y, base)};
}

} // namespace QmChart6

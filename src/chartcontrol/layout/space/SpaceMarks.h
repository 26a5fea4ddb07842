#pragma once

#include "chartcontrol/layout/data/PlottedValues.h"
#include "chartcontrol/layout/space/SpacePlaces.h"
#include "chartcontrol/layout/space/SpacePlan.h"

#include <algorithm>

namespace QmChart6 {

/// How much of its row a bar fills in depth, the rest being gap.
inline constexpr double BarDepthShare = 0.5;
/// How much of its slot a bar fills.
inline double BarWidthShare(const Chart& chart) {
    return 1 / (1 + std::max(0.0, chart.Plot.XGap / 100));
}

/// The marks of a 3D plot, from the farthest to the nearest, whatever the angle: the rows one behind the
/// other, in a row the columns, in a column the piled pieces, and at last the faces that look to the front or
/// the back of the row. Gives where the points are.
SpacePlaces LayOutSpaceMarks(const LayoutContext& context, const SpacePlan& plan,
                             const PlottedValues& plotted);

} // namespace QmChart6

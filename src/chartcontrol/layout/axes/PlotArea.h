#pragma once

#include "chartcontrol/scale/AxisMap.h"
#include "chartcontrol/scene/Scene.h"

namespace QmChart6 {

/// The finished geometry of an axis-bound plot, which all marks are placed by.
struct PlotArea {
    Box box;
    /// Points from one category to the next.
    double slot = 0;
    /// The middle of the first category.
    double firstX = 0;
    /// The x of an XY chart's values; otherwise unused.
    AxisMap across;
    AxisMap primary;
    AxisMap secondary;
    /// Device pixels to a point.
    double pixelsPerPoint = 1;

    [[nodiscard]] double CategoryX(int category) const { return firstX + category * slot; }
    [[nodiscard]] const AxisMap& MapOf(bool onSecondary) const { return onSecondary ? secondary : primary; }
};

} // namespace QmChart6

#pragma once

#include "chartcontrol/scale/LinearMap.h"
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
    LinearMap across;
    LinearMap primary;
    LinearMap secondary;
    /// Device pixels to a point.
    double pixelsPerPoint = 1;

    [[nodiscard]] double CategoryX(int category) const { return firstX + category * slot; }
    [[nodiscard]] const LinearMap& MapOf(bool onSecondary) const { return onSecondary ? secondary : primary; }
    /// Where bars and areas of the map stand: at zero, or at the end of the axis that is nearest to it.
    [[nodiscard]] static double BaseOf(const LinearMap& map) {
        return map.At(map.low > 0 ? map.low : map.high < 0 ? map.high : 0);
    }
};

} // namespace QmChart6

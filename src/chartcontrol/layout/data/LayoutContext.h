#pragma once

#include "chartcontrol/model/Chart.h"
#include "chartcontrol/scene/SceneBuilder.h"
#include "chartcontrol/scene/TextMeasurer.h"

namespace QmChart6 {

/// What layout is asked for: the room, and how fine the picture will be.
struct LayoutRequest {
    /// Points; sizes below 1 by 1 give an empty scene.
    Size size;
    /// Device pixels to a point, for the sake of large data alone: no series costs more than the picture is
    /// wide.
    double pixelsPerPoint = 4.0 / 3.0;
};

/// What every part of the layout works with.
struct LayoutContext {
    const Chart& chart;
    const LayoutRequest& request;
    const TextMeasurer& measurer;
    SceneBuilder& builder;
};

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/PointPlaces.h"
#include "chartcontrol/layout/data/LayoutContext.h"

namespace QmChart6 {

/// A chart as a finished picture, and where its data points are in it.
struct LaidOutChart {
    Scene scene;
    PointPlaces places;
};

/// The chart as a scene. Pure: the same chart, request and measurer give the same scene, on any thread. Odd
/// data is no error here; what could not be shown as asked is told in the scene's warnings.
LaidOutChart LayOut(const Chart& chart, const LayoutRequest& request, const TextMeasurer& measurer);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"

namespace QmChart6 {

/// The chart as a scene. Pure: the same chart, request and measurer give the same scene, on any thread. Odd
/// data is no error here; what could not be shown as asked is told in the scene's warnings.
Scene LayOut(const Chart& chart, const LayoutRequest& request, const TextMeasurer& measurer);

} // namespace QmChart6

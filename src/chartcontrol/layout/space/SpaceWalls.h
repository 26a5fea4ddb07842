#pragma once

#include "chartcontrol/layout/space/SpacePlan.h"

namespace QmChart6 {

/// The floor and the two walls that stand behind the marks, with the grid lines on them.
void LayOutWalls(const LayoutContext& context, const PlotDemand& demand, const SpacePlan& plan);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/space/SpacePlan.h"

namespace QmChart6 {

/// The floor and the two walls that stand behind the marks, with the grid lines on them.
void LayOutWalls(const LayoutContext& context, const PlotDemand& demand, const SpacePlan& plan);

/// The labels and titles of the axes, along the edges of floor and walls that are nearest to the viewer.
void LayOutSpaceAxes(const LayoutContext& context, const SpacePlan& plan, const Box& box);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/space/SpacePlan.h"

namespace QmChart6 {

/// The labels and titles of the axes, along the edges of floor and walls that are nearest to the viewer, all
/// within the box: what finds no place beside the space is left out.
void LayOutSpaceAxes(const LayoutContext& context, const SpacePlan& plan, const Box& box);

/// What the space and all of those labels and titles would take, were there no end of room.
Box WishedByAxes(const LayoutContext& context, const SpacePlan& plan, const Box& box);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/data/PlottedValues.h"
#include "chartcontrol/layout/space/SpacePlan.h"

namespace QmChart6 {

/// The data labels of a 3D plot, those of nearer rows first: beyond the end of their mark, on its front, or
/// on a plate over what is there. Points whose end others hide have none.
void LayOutSpaceLabels(const LayoutContext& context, const SpacePlan& plan, const PlottedValues& plotted,
                       const Box& box);

/// The room above the space in which the labels of the highest marks stand.
double HeadRoomOfSpaceLabels(const LayoutContext& context);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/space/SpacePlan.h"

namespace QmChart6 {

/// Fits a 3D plot and the texts of its axes to each other within a box. A small one does without titles, and
/// then without labels.
SpacePlan FitSpace(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                   const Box& box);

} // namespace QmChart6

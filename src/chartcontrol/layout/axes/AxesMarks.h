#pragma once

#include "chartcontrol/layout/axes/AxesPlan.h"

namespace QmChart6 {

/// The grid lines of the planned axes, which lie behind the marks.
void LayOutGrid(const LayoutContext& context, const PlotDemand& demand, const AxesPlan& plan);

/// The axis lines, labels and titles, which lie before them.
void LayOutAxes(const LayoutContext& context, const PlotDemand& demand, const AxesPlan& plan, const Box& box);

} // namespace QmChart6

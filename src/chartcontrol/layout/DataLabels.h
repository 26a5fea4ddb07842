#pragma once

#include "chartcontrol/layout/LayoutContext.h"
#include "chartcontrol/layout/PlotArea.h"

#include <vector>

namespace QmChart6 {

/// The data labels of a plot with axes. `bars` are the series drawn as bars, in order. Labels that would
/// cover another or leave the plot are left out, later series and categories first.
void LayOutDataLabels(const LayoutContext& context, const PlotArea& area, const std::vector<int>& bars);

} // namespace QmChart6

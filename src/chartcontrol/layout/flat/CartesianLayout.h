#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/flat/PlottedArea.h"

namespace QmChart6 {

/// Lays out a plot with axes within a box: axis titles and labels, grid, and the marks of every series. Gives
/// what all of them were placed by.
PlottedArea LayOutCartesian(const LayoutContext& context, const Box& box);

} // namespace QmChart6

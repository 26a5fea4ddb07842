#pragma once

#include "chartcontrol/layout/flat/PlotContext.h"

namespace QmChart6 {

/// How wide the names of the series are at the ends of their lines, with the gap before them; 0 where they
/// are not asked for, or would not all fit beside a plot in that box: then a legend has to tell them.
double DirectNamesWidth(const LayoutContext& context, const Box& box);

/// The names to the right of the plot, each at the height of its series' last point, moved apart where they
/// would meet.
void LayOutDirectNames(const PlotContext& context);

} // namespace QmChart6

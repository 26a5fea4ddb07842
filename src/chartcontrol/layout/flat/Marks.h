#pragma once

#include "chartcontrol/layout/flat/PlotContext.h"

namespace QmChart6 {

// One function for each kind of mark, each in a source file of its own. Those of one series take its number.

/// All bar series of the chart together: they share the slots.
void LayOutBars(const PlotContext& context, const std::vector<int>& series);
/// All area series: fills first, then every series' edge, so that none is hidden behind another; piled ones
/// cover each other from the axis on.
void LayOutAreas(const PlotContext& context, const std::vector<int>& series);
void LayOutLine(const PlotContext& context, int series);
void LayOutStep(const PlotContext& context, int series);
/// A series of an XY chart, against the column before it.
void LayOutXY(const PlotContext& context, int series);

} // namespace QmChart6

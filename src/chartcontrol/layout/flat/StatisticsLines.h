#pragma once

#include "chartcontrol/layout/flat/PlotContext.h"

namespace QmChart6 {

/// The statistics lines of every series that asks for some, told apart by their dashes: minimum dotted,
/// maximum dashed, mean long dashes, standard deviation dashes and dots (one line above, one below the mean),
/// regression solid. Piled series and shares have none: their places are not their values.
void LayOutStatistics(const PlotContext& context);

} // namespace QmChart6

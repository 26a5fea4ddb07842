#pragma once

#include "chartcontrol/layout/flat/PlotContext.h"

namespace QmChart6 {

/// The data labels of a plot with axes. A label that would
/// cover another or leave the plot moves to the next best place; where there is none it is left out, the
/// least telling first: those that are neither the ends nor the extremes of their series.
void LayOutDataLabels(const PlotContext& context);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/flat/PlotContext.h"

namespace QmChart6 {

/// The data labels of a plot with axes, within a room that may be larger than the plot. A label stands where
/// all of it is read: at the place that it was given, else at the next best, upright where all bars' labels
/// fit only so; where there is none it is left out, the least telling first: those that are neither the ends
/// nor the extremes of their series.
void LayOutDataLabels(const PlotContext& context, const Box& room);

} // namespace QmChart6

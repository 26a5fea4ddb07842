#pragma once

#include "chartcontrol/layout/flat/PlotContext.h"
#include "chartcontrol/layout/flat/Runs.h"

namespace QmChart6 {

/// The markers of a line's samples, one look for all, then those points that have a look of their own.
void LayOutMarkers(const PlotContext& context, int series, const Runs& runs);

/// A dot for every sample that stands alone between missing values, where a line would not show it.
void LayOutLoneSamples(const PlotContext& context, int series, const Runs& runs);

} // namespace QmChart6

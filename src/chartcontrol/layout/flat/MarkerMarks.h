#pragma once

#include "chartcontrol/layout/flat/PlotContext.h"
#include "chartcontrol/layout/flat/Runs.h"

namespace QmChart6 {

/// The markers of a line's samples, one look for all, then those points that have a look of their own.
void LayOutMarkers(const PlotContext& context, int series, const Runs& runs);

/// A dot at each of the builder's pending points: values that stand alone between missing ones, where a line
/// would not show them.
void AddDots(const PlotContext& context, int series);

/// Dots for the runs of a single sample.
void LayOutLoneSamples(const PlotContext& context, int series, const Runs& runs);

} // namespace QmChart6

#pragma once

#include "chartcontrol/widget/ChartPart.h"

#include <optional>
#include <vector>

namespace QmChart6 {

/// The parts of a chart in the order in which the keyboard walks them: title, plot, series, axes (their
/// labels where there is no line), axis titles, legend, footnote; those alone that the scene shows.
std::vector<ChartPart> WalkOrder(const Chart& chart, const Scene& scene);

/// The part behind (or before) the current one; the first (or last) if the current one is not among them,
/// nothing at the end. Which point of a series is current makes no difference.
std::optional<ChartPart> NextPart(const std::vector<ChartPart>& order, const ChartPart& current,
                                  bool forward);

/// The data point `by` points from the current part's: the next that has a value, or the first (last) from a
/// series as a whole. Nothing at the ends and for other parts.
std::optional<ChartPart> NextPoint(const Chart& chart, const ChartPart& current, int by);

/// The series `by` (1 or -1) from the current part's, at the same point where it has a value. Nothing at the
/// ends and for other parts.
std::optional<ChartPart> NextSeries(const Chart& chart, const ChartPart& current, int by);

} // namespace QmChart6

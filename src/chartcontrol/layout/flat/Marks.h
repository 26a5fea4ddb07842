#pragma once

#include "chartcontrol/layout/flat/PlotContext.h"

#include <array>
#include <vector>

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

/// How a mark is drawn: all its series at once, or each by itself, and how many points a sample of it takes.
struct Drawing {
    Mark mark;
    double points = 1;
    void (*all)(const PlotContext& context, const std::vector<int>& series) = nullptr;
    void (*one)(const PlotContext& context, int series) = nullptr;
};

/// What is drawn at once comes first, in this order; then the others, in the order of the series.
inline constexpr std::array Drawings{
    Drawing{.mark = Mark::Area, .points = 2, .all = LayOutAreas},
    Drawing{.mark = Mark::Bar, .points = 0, .all = LayOutBars},
    Drawing{.mark = Mark::Line, .one = LayOutLine},
    Drawing{.mark = Mark::Step, .points = 2, .one = LayOutStep},
    Drawing{.mark = Mark::XY, .one = LayOutXY},
};

} // namespace QmChart6

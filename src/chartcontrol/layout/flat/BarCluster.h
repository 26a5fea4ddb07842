#pragma once

#include "chartcontrol/layout/flat/PlotContext.h"

#include <vector>

namespace QmChart6 {

/// How the bars of one category share its slot: their width, and where each series' bar starts, from the
/// middle of the slot. The order is that of the series that it was made for.
struct BarCluster {
    double barWidth = 0;
    std::vector<double> left;
};

/// The cluster of the bar series. Piled series stand in one place, one for each value axis. BarGap and XGap
/// of the plot are percents of a bar's width; a bar is never wider than a sixth of the plot, so that few do
/// not become walls.
BarCluster ClusterOf(const PlotContext& context, const std::vector<int>& series);

} // namespace QmChart6

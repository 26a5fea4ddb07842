#pragma once

#include "chartcontrol/layout/PlotArea.h"

namespace QmChart6 {

/// How the bars of one category share its slot: `left` is where the first bar starts, from the slot's middle.
struct BarCluster {
    double barWidth = 0;
    double pitch = 0;
    double left = 0;
};

/// The cluster of so many bar series. BarGap and XGap of the plot are percents of a bar's width; a bar is
/// never wider than a sixth of the plot, so that few bars do not become walls.
BarCluster ClusterOf(const Plot& plot, const PlotArea& area, int bars);

} // namespace QmChart6

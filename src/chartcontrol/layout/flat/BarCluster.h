#pragma once

#include "chartcontrol/layout/axes/PlotArea.h"
#include "chartcontrol/layout/data/PlottedValues.h"

#include <vector>

namespace QmChart6 {

/// How the bars of one category share its slot: their width, and where each series' bar starts, from the
/// middle of the slot.
struct BarCluster {
    double barWidth = 0;
    /// Bars stand on whole device pixels; otherwise their edges are smoothed, so that all look equally wide.
    bool whole = false;
    std::vector<double> left; // by the series' number - 1; of bars only

    [[nodiscard]] bool IsEmpty() const { return left.empty(); }
    [[nodiscard]] double LeftOf(int series) const { return left[static_cast<std::size_t>(series) - 1]; }
};

/// The cluster of the bar series. Piled series stand in one place, one for each value axis. BarGap and XGap
/// of the plot are percents of a bar's width; a bar is never wider than a sixth of the plot, so that few do
/// not become walls.
BarCluster ClusterOf(const Plot& plot, const PlottedValues& plotted, const PlotArea& area);

} // namespace QmChart6

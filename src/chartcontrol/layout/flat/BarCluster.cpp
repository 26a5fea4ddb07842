#include "chartcontrol/layout/flat/BarCluster.h"

#include <algorithm>

namespace QmChart6 {

namespace {

constexpr double WidestShare = 1.0 / 6;

/// Where the bars of each series stand in the slot, counted from 0.
std::vector<int> PlacesOf(const PlottedValues& plotted, const std::vector<int>& bars) {
    std::vector<int> places;
    for (const int number : bars)
        places.push_back(plotted.IsStacked() ? static_cast<int>(plotted.IsSecondary(number))
                                             : static_cast<int>(places.size()));
    return places;
}

} // namespace

BarCluster ClusterOf(const Plot& plot, const PlottedValues& plotted, const PlotArea& area) {
    std::vector<int> bars;
    for (int number = 1; number <= plotted.SeriesCount(); ++number)
        if (plotted.MarkOf(number) == Mark::Bar) bars.push_back(number);
    if (bars.empty()) return {};
    const std::vector<int> places = PlacesOf(plotted, bars);
    const auto [first, last] = std::minmax_element(places.begin(), places.end());
    const int count = *last - *first + 1;
    const double gap = plot.BarGap / 100;
    const double widths = count + (count - 1) * gap + std::max(0.0, plot.XGap / 100);
    const double width = std::min(area.slot / std::max(widths, 1e-9), WidestShare * area.box.Width());
    const double pitch = width * (1 + gap);
    BarCluster cluster{width, std::vector<double>(static_cast<std::size_t>(plotted.SeriesCount()))};
    for (std::size_t i = 0; i < bars.size(); ++i)
        cluster.left[static_cast<std::size_t>(bars[i]) - 1] =
            (places[i] - *first) * pitch - (width + (count - 1) * pitch) / 2;
    return cluster;
}

} // namespace QmChart6

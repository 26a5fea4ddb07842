#include "chartcontrol/layout/flat/BarCluster.h"

#include "chartcontrol/layout/axes/SlotGrid.h"

#include <algorithm>
#include <cmath>

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

/// The bars of a slot side by side: their width, from one to the next, and where the first starts, from the
/// middle of the slot.
struct Row {
    double width = 0;
    double pitch = 0;
    double start = 0;
    bool whole = false;
};

/// In whole device pixels, where the slots are whole and a bar takes at least one.
Row RowOf(double width, double gap, int count, const PlotArea& area) {
    const double pixels = area.pixelsPerPoint;
    const auto whole = [pixels](double length) { return std::floor(length * pixels + 1e-6) / pixels; };
    Row row{width, width * (1 + gap), 0, HasWholeSlots(area) && width * pixels >= 1};
    if (row.whole) {
        row.width = whole(width);
        row.pitch = row.width + std::round(row.width * gap * pixels) / pixels;
    }
    const double span = row.width + (count - 1) * row.pitch;
    row.start = row.whole ? whole((area.slot - span) / 2) - area.slot / 2 : -span / 2;
    return row;
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
    const Row row = RowOf(width, gap, count, area);
    BarCluster cluster{row.width, row.whole,
                       std::vector<double>(static_cast<std::size_t>(plotted.SeriesCount()))};
    for (std::size_t i = 0; i < bars.size(); ++i)
        cluster.left[static_cast<std::size_t>(bars[i]) - 1] = row.start + (places[i] - *first) * row.pitch;
    return cluster;
}

} // namespace QmChart6

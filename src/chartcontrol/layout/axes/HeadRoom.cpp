#include "chartcontrol/layout/axes/HeadRoom.h"

#include "chartcontrol/layout/text/LabelText.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// From mark to label and from label to the plot's edge, together.
constexpr double Gaps = 5;
/// The axis grows by no more than so much of its length.
constexpr double MostShare = 0.4;

/// Whether a label at that location stands beyond the end of its mark.
bool StandsBeyond(LabelLocation location) {
    return location == LabelLocation::AbovePoint || location == LabelLocation::Outside;
}

double ShareOf(double room, double length) {
    return std::min(room / length, MostShare);
}

ValueRange GrownBySteps(ValueRange range, const HeadRoom& room, bool keepZero, double length) {
    if (keepZero) range.Include(0);
    // Quarters, so that the largest values have a span that is finite.
    const double quarter = range.high / 4 - range.low / 4;
    const double above = range.high > 0 ? ShareOf(room.above, length) : 0;
    // Data without anything below zero get no axis that reaches there.
    const double below = range.low < 0 ? ShareOf(room.below, length) : 0;
    const double factor = 4 / (1 - above - below);
    return {range.low - quarter * below * factor, range.high + quarter * above * factor};
}

ValueRange GrownByPowers(const ValueRange& range, const HeadRoom& room, double length) {
    const double decades = std::log10(range.high) - std::log10(range.low);
    const double above = ShareOf(room.above, length);
    return {range.low, range.high * std::pow(10.0, decades * above / (1 - above))};
}

} // namespace

HeadRoom HeadRoomOf(const LayoutContext& context, const PlottedValues& plotted, bool secondary) {
    HeadRoom room;
    for (int number = 1; number <= plotted.SeriesCount(); ++number) {
        if (!plotted.IsDrawn(number) || plotted.IsSecondary(number) != secondary) continue;
        const DataPointLabel& label =
            context.chart.Plot.SeriesCollection(number).DataPoints.Item(DataPoints::All).DataPointLabel;
        const bool isBar = plotted.MarkOf(number) == Mark::Bar;
        if (!ShowsLabel(label) || (isBar && !StandsBeyond(label.LocationType))) continue;
        const double height = context.measurer.Measure(QStringLiteral("0"), label.VtFont).Height() + Gaps;
        room.above = std::max(room.above, height);
        room.below = std::max(room.below, height);
    }
    return room;
}

AxisDemand WithHeadRoom(const AxisDemand& demand, const HeadRoom& room, bool keepZero, double length) {
    if (demand.range.IsEmpty() || !(length > 0) || (room.above <= 0 && room.below <= 0)) return demand;
    AxisDemand grown = demand;
    grown.range = demand.logarithmic ? GrownByPowers(demand.range, room, length)
                                     : GrownBySteps(demand.range, room, keepZero, length);
    return std::isfinite(grown.range.high) && std::isfinite(grown.range.low) ? grown : demand;
}

} // namespace QmChart6

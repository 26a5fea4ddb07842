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

ValueRange WithHeadRoom(const ValueRange& range, const HeadRoom& room, bool keepZero, double length) {
    if (range.IsEmpty() || !(length > 0) || (room.above <= 0 && room.below <= 0)) return range;
    ValueRange grown = range;
    if (keepZero) grown.Include(0);
    // Quarters, so that the largest values have a span that is finite.
    const double quarter = grown.high / 4 - grown.low / 4;
    const double above = grown.high > 0 ? std::min(room.above / length, MostShare) : 0;
    // Data without anything below zero get no axis that reaches there.
    const double below = grown.low < 0 ? std::min(room.below / length, MostShare) : 0;
    const double factor = 4 / std::max(0.2, 1 - above - below);
    const double high = grown.high + quarter * above * factor;
    const double low = grown.low - quarter * below * factor;
    return std::isfinite(high) && std::isfinite(low) ? ValueRange{low, high} : range;
}

} // namespace QmChart6

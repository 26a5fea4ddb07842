#include "chartcontrol/layout/space/SpaceLayout.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/space/SpaceAxes.h"
#include "chartcontrol/layout/space/SpaceFit.h"
#include "chartcontrol/layout/space/SpaceMarks.h"
#include "chartcontrol/layout/space/SpaceWalls.h"
#include "chartcontrol/layout/text/Ground.h"
#include "chartcontrol/layout/text/LabelPlaces.h"
#include "chartcontrol/layout/text/LabelText.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

constexpr double LabelGap = 3;
constexpr double LongestLabel = 120;

/// Data labels stand above the front of their mark, those of nearer rows first. Points that others hide have
/// none.
class SpaceLabels {
public:
    SpaceLabels(const LayoutContext& context, const SpacePlan& plan, const PlottedValues& plotted,
                const SpacePlaces& places, const Box& box)
        : context_(context), plan_(plan), plotted_(plotted), places_(places),
          ground_(context.builder.Built(), box, context.chart.Backdrop.Fill.Brush.FillColor),
          texts_(context.chart) {}

    void Run() {
        std::vector<int> rows = plan_.View().FarToNearZ(plan_.rows);
        std::reverse(rows.begin(), rows.end());
        for (const int row : rows)
            for (int number = 1; number <= context_.chart.Plot.SeriesCollection.Count(); ++number)
                if (plan_.rowOfSeries[static_cast<std::size_t>(number) - 1] == row) Label(number, row);
        if (omitted_ > 0) context_.builder.Warn(QStringLiteral("%1 data labels have no room").arg(omitted_));
    }

    static bool AreAsked(const Chart& chart) {
        return std::any_of(chart.Plot.SeriesCollection.begin(), chart.Plot.SeriesCollection.end(),
                           [](const Series& series) {
                               return ShowsLabel(series.DataPoints.Item(DataPoints::All).DataPointLabel) ||
                                      series.DataPoints.HasOwn();
                           });
    }

private:
    void Label(int number, int row) {
        const Series& series = context_.chart.Plot.SeriesCollection(number);
        const Values values = context_.chart.SeriesValues(number);
        for (std::size_t column = 0; column < plan_.columns.size(); ++column) {
            const int category = plan_.categories[column];
            const DataPointLabel& label = series.DataPoints.Item(category + 1).DataPointLabel;
            if (std::isnan(values[category]) || !ShowsLabel(label)) continue;
            if (IsSeen(number, category)) Place(number, category, label, Anchor(number, row, column));
        }
    }

    /// Whether the mark is what is seen at its place.
    [[nodiscard]] bool IsSeen(int number, int category) const {
        const std::optional<Point> place = places_.At({number, category + 1});
        if (!place) return false;
        // The very edge of a tape or an area is as good as seen.
        for (const double down : {0.0, 1.0, 2.0}) {
            const std::optional<Part> part = ground_.PartAt({place->x, place->y + down});
            if (part && part->code == PartCode::Series && part->index1 == number) return true;
        }
        return false;
    }

    /// The place that the label's location asks for: the mark's end, its base, or between.
    [[nodiscard]] SpacePoint Anchor(int number, int row, std::size_t column) const {
        const Series& series = context_.chart.Plot.SeriesCollection(number);
        const int category = plan_.categories[column];
        const AxisMap& map = plan_.MapOf(series);
        const double top = map.At(plotted_.Top(number)[category]);
        const Values bases = plotted_.Base(number);
        const double base = bases.first == nullptr ? map.Base() : map.StandAt(bases[category]);
        const LabelLocation location = series.DataPoints.Item(category + 1).DataPointLabel.LocationType;
        const double y = location == LabelLocation::Base     ? base
                         : location == LabelLocation::Center ? (top + base) / 2
                                                             : std::max(top, base);
        return {plan_.columns[column], y, plan_.rows[static_cast<std::size_t>(row)] - plan_.rowDepth / 4};
    }

    void Place(int number, int category, const DataPointLabel& label, SpacePoint anchor) {
        const QStringList pieces =
            texts_.Of(label, number, category, context_.chart.SeriesValues(number)[category]);
        const TextBlock block =
            BreakLabel(pieces, label.VtFont, label.TextLayout.Orientation, LongestLabel, context_.measurer);
        if (block.IsEmpty()) return;
        const Size size = block.Extent();
        const Point at = plan_.Page(anchor);
        const Box box{at.x - size.width / 2, at.y - LabelGap - size.height, at.x + size.width / 2,
                      at.y - LabelGap};
        if (!ground_.Under(box.Grown(PlateRim)).free) {
            ++omitted_;
            return;
        }
        ground_.Take(box);
        // A plate in the ground's colour: whatever mark lies behind, the label is read.
        DrawLabel(context_.builder, {PartCode::PointLabel, number, category + 1}, block,
                  {{box}, ground_.PlainColour(), true});
    }

    const LayoutContext& context_;
    const SpacePlan& plan_;
    const PlottedValues& plotted_;
    const SpacePlaces& places_;
    Ground ground_;
    LabelTexts texts_;
    int omitted_ = 0;
};

} // namespace

SpacePlaces LayOutSpace(const LayoutContext& context, const Box& box) {
    const PlottedValues plotted(context.chart);
    const PlotDemand demand = DemandOf(context.chart, plotted);
    WarnOf(context, demand);
    const SpacePlan plan = FitSpace(context, demand, plotted, box);
    LayOutWalls(context, demand, plan);
    SpacePlaces places = LayOutSpaceMarks(context, plan, plotted);
    LayOutSpaceAxes(context, plan, box);
    if (SpaceLabels::AreAsked(context.chart)) SpaceLabels(context, plan, plotted, places, box).Run();
    return places;
}

} // namespace QmChart6

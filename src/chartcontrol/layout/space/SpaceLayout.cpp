#include "chartcontrol/layout/space/SpaceLayout.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/space/SpaceMarks.h"
#include "chartcontrol/layout/space/SpaceWalls.h"
#include "chartcontrol/layout/text/LabelText.h"
#include "chartcontrol/layout/text/Occupancy.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// A plot smaller than this on the page does without titles, and then without labels. Points.
constexpr double SmallestWidth = 60;
constexpr double SmallestHeight = 45;
constexpr double LabelGap = 3;
constexpr double LongestLabel = 120;

SpacePlan PlanThatFits(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                       const Box& box) {
    for (const Furniture furniture : {Furniture::All, Furniture::NoTitles}) {
        SpacePlan plan = PlanSpace(context, demand, plotted, box, furniture);
        const Size extent = plan.Extent();
        if (extent.width >= SmallestWidth && extent.height >= SmallestHeight) return plan;
    }
    context.builder.Warn(QStringLiteral("the chart is too small for its axes' labels"));
    return PlanSpace(context, demand, plotted, box, Furniture::None);
}

/// Data labels stand above the front of their mark, those of nearer rows first.
class SpaceLabels {
public:
    SpaceLabels(const LayoutContext& context, const SpacePlan& plan, const PlottedValues& plotted,
                const Box& box)
        : context_(context), plan_(plan), plotted_(plotted), taken_(box), texts_(context.chart) {}

    void Run() {
        std::vector<int> rows = plan_.View().FarToNearZ(plan_.rows);
        std::reverse(rows.begin(), rows.end());
        for (const int row : rows)
            for (int number = 1; number <= context_.chart.Plot.SeriesCollection.Count(); ++number)
                if (plan_.rowOfSeries[static_cast<std::size_t>(number) - 1] == row) Label(number, row);
        if (omitted_ > 0) context_.builder.Warn(QStringLiteral("%1 data labels have no room").arg(omitted_));
    }

private:
    void Label(int number, int row) {
        const Series& series = context_.chart.Plot.SeriesCollection(number);
        if (!ShowsLabel(series.DataPoints.Item(DataPoints::All).DataPointLabel) &&
            !series.DataPoints.HasOwn())
            return;
        const Values values = context_.chart.SeriesValues(number);
        for (std::size_t column = 0; column < plan_.columns.size(); ++column) {
            const int category = plan_.categories[column];
            const DataPointLabel& label = series.DataPoints.Item(category + 1).DataPointLabel;
            if (std::isnan(values[category]) || !ShowsLabel(label)) continue;
            Place(number, category, label, Anchor(number, row, column));
        }
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
        const QString text =
            texts_.Of(label, number, category, context_.chart.SeriesValues(number)[category]);
        const TextBlock block =
            BreakText(text, label.VtFont, label.TextLayout.Orientation, {LongestLabel, 2}, context_.measurer);
        const Size size = block.Extent();
        const Point at = plan_.Page(anchor);
        const Box place{at.x - size.width / 2, at.y - LabelGap - size.height, at.x + size.width / 2,
                        at.y - LabelGap};
        if (!taken_.Take(place)) {
            ++omitted_;
            return;
        }
        // A plate in the ground's colour: whatever mark lies behind, the label is read.
        const Part part{PartCode::PointLabel, number, category + 1};
        context_.builder.AddRectangle(part, place, SolidFill(context_.chart.Backdrop.Fill.Brush.FillColor),
                                      {}, false);
        PlaceText(context_.builder, part, block, place, HorizontalAlignment::Center,
                  VerticalAlignment::Center);
    }

    const LayoutContext& context_;
    const SpacePlan& plan_;
    const PlottedValues& plotted_;
    Occupancy taken_;
    LabelTexts texts_;
    int omitted_ = 0;
};

} // namespace

SpacePlaces LayOutSpace(const LayoutContext& context, const Box& box) {
    const PlottedValues plotted(context.chart);
    const PlotDemand demand = DemandOf(context.chart, plotted);
    WarnOf(context, demand);
    const SpacePlan plan = PlanThatFits(context, demand, plotted, box);
    LayOutWalls(context, demand, plan);
    SpacePlaces places = LayOutSpaceMarks(context, plan, plotted);
    LayOutSpaceAxes(context, plan, box);
    SpaceLabels(context, plan, plotted, box).Run();
    return places;
}

} // namespace QmChart6

#include "chartcontrol/layout/CartesianLayout.h"

#include "chartcontrol/layout/AxesMarks.h"
#include "chartcontrol/layout/AxesPlan.h"
#include "chartcontrol/layout/DataLabels.h"
#include "chartcontrol/layout/Marks.h"
#include "chartcontrol/layout/SeriesLook.h"

namespace QmChart6 {

namespace {

/// A plot smaller than this does without axis titles, and then without labels. Points.
constexpr Size SmallestPlot{60, 45};

AxesPlan PlanThatFits(const LayoutContext& context, const PlotDemand& demand, const Box& box) {
    for (const Furniture furniture : {Furniture::All, Furniture::NoTitles}) {
        AxesPlan plan = PlanAxes(context, demand, box, furniture);
        if (plan.area.box.Width() >= SmallestPlot.width && plan.area.box.Height() >= SmallestPlot.height)
            return plan;
    }
    context.builder.Warn(QStringLiteral("the chart is too small for its axes' labels"));
    return PlanAxes(context, demand, box, Furniture::None);
}

/// Whether a fixed range may leave values outside the plot.
bool MayOverflow(const Chart& chart) {
    for (const AxisId id : {AxisId::X, AxisId::Y, AxisId::SecondaryY})
        if (!chart.Plot.Axis(id).ValueScale.Auto) return true;
    return false;
}

void LayOutMarks(const LayoutContext& context, const PlotDemand& demand, const PlotArea& area) {
    if (MayOverflow(context.chart)) context.builder.SetClip(area.box);
    LayOutAreas(context, area, demand.areas);
    LayOutBars(context, area, demand.bars);
    for (const int series : demand.others) {
        switch (MarkKindOf(context.chart, series)) {
        case MarkKind::Line:
            LayOutLine(context, area, series);
            break;
        case MarkKind::Step:
            LayOutStep(context, area, series);
            break;
        case MarkKind::XY:
            LayOutXY(context, area, series);
            break;
        case MarkKind::Bar:
        case MarkKind::Area:
        case MarkKind::Pie:
            break;
        }
    }
    context.builder.SetClip({});
}

} // namespace

void LayOutCartesian(const LayoutContext& context, const Box& box) {
    const PlotDemand demand = DemandOf(context.chart);
    if (!demand.HasValues()) context.builder.Warn(QStringLiteral("there is no value to show"));
    const AxesPlan plan = PlanThatFits(context, demand, box);
    context.builder.AddRectangle({PartCode::Plot}, plan.area.box, {});
    LayOutGrid(context, demand, plan);
    LayOutMarks(context, demand, plan.area);
    LayOutAxes(context, demand, plan, box);
    LayOutDataLabels(context, plan.area, demand.bars);
}

} // namespace QmChart6

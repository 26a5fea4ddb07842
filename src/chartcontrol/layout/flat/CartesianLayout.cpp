#include "chartcontrol/layout/flat/CartesianLayout.h"

#include "chartcontrol/layout/axes/AxesMarks.h"
#include "chartcontrol/layout/axes/AxesPlan.h"
#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/flat/DataLabels.h"
#include "chartcontrol/layout/flat/Marks.h"
#include "chartcontrol/layout/flat/PlotContext.h"
#include "chartcontrol/layout/flat/StatisticsLines.h"

#include <algorithm>

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

/// Points that the series will need at the most.
std::size_t MostPoints(const PlotContext& context, const PlotDemand& demand) {
    constexpr double pointsOfColumn = 4;
    const double columns = context.area.box.Width() * context.area.pixelsPerPoint + 1;
    const double each = demand.isXY
                            ? context.chart.CategoryCount()
                            : std::min<double>(context.chart.CategoryCount(), pointsOfColumn * columns);
    return static_cast<std::size_t>(each *
                                    static_cast<double>(demand.areas.size() * 2 + demand.others.size()));
}

void LayOutMarks(const PlotContext& context, const PlotDemand& demand) {
    context.builder.Reserve(MostPoints(context, demand));
    if (MayOverflow(context.chart)) context.builder.SetClip(context.area.box);
    LayOutAreas(context, demand.areas);
    LayOutBars(context, demand.bars);
    for (const int series : demand.others) {
        switch (MarkKindOf(context.chart, series)) {
        case MarkKind::Line:
            LayOutLine(context, series);
            break;
        case MarkKind::Step:
            LayOutStep(context, series);
            break;
        case MarkKind::XY:
            LayOutXY(context, series);
            break;
        case MarkKind::Bar:
        case MarkKind::Area:
        case MarkKind::Pie:
            break;
        }
    }
    LayOutStatistics(context);
    context.builder.SetClip({});
}

} // namespace

void LayOutCartesian(const LayoutContext& context, const Box& box) {
    const PlottedValues plotted(context.chart);
    const PlotDemand demand = DemandOf(context.chart, plotted);
    if (!demand.HasValues()) context.builder.Warn(QStringLiteral("there is no value to show"));
    const AxesPlan plan = PlanThatFits(context, demand, box);
    context.builder.AddRectangle({PartCode::Plot}, plan.area.box, {});
    LayOutGrid(context, demand, plan);
    const PlotContext plot{context, plan.area, plotted};
    LayOutMarks(plot, demand);
    LayOutAxes(context, demand, plan, box);
    LayOutDataLabels(plot, demand.bars);
}

} // namespace QmChart6

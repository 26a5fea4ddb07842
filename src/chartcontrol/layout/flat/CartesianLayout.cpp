#include "chartcontrol/layout/flat/CartesianLayout.h"

#include "chartcontrol/layout/axes/AxesMarks.h"
#include "chartcontrol/layout/axes/AxesPlan.h"
#include "chartcontrol/layout/flat/DataLabels.h"
#include "chartcontrol/layout/flat/DirectNames.h"
#include "chartcontrol/layout/flat/Marks.h"
#include "chartcontrol/layout/flat/PlotContext.h"
#include "chartcontrol/layout/flat/StatisticsLines.h"

#include <algorithm>

namespace QmChart6 {

namespace {

/// A plot smaller than this does without axis titles, and then without labels. Points.
constexpr Size SmallestPlot{60, 45};

AxesPlan PlanThatFits(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                      const Box& box) {
    for (const Furniture furniture : {Furniture::All, Furniture::NoTitles}) {
        AxesPlan plan = PlanAxes(context, demand, plotted, box, furniture);
        if (plan.area.box.Width() >= SmallestPlot.width && plan.area.box.Height() >= SmallestPlot.height)
            return plan;
    }
    context.builder.Warn(QStringLiteral("the chart is too small for its axes' labels"));
    return PlanAxes(context, demand, plotted, box, Furniture::None);
}

/// Whether a fixed range may leave values outside the plot.
bool MayOverflow(const Chart& chart) {
    for (const AxisId id : {AxisId::X, AxisId::Y, AxisId::SecondaryY})
        if (!chart.Plot.Axis(id).ValueScale.Auto) return true;
    return false;
}

const Drawing* DrawingOf(Mark mark) {
    const auto found = std::find_if(Drawings.begin(), Drawings.end(),
                                    [mark](const Drawing& drawing) { return drawing.mark == mark; });
    return found == Drawings.end() ? nullptr : &*found;
}

/// Points that the series will need at the most.
std::size_t MostPoints(const PlotContext& context, const PlotDemand& demand) {
    constexpr double pointsOfColumn = 4;
    const double columns = context.area.box.Width() * context.area.pixelsPerPoint + 1;
    const double samples = demand.pairsColumns
                               ? context.plotted.CategoryCount()
                               : std::min<double>(context.plotted.CategoryCount(), pointsOfColumn * columns);
    double points = 0;
    for (const int series : demand.series)
        if (const Drawing* drawing = DrawingOf(context.plotted.MarkOf(series)))
            points += samples * drawing->points;
    return static_cast<std::size_t>(points);
}

void LayOutMarks(const PlotContext& context, const PlotDemand& demand) {
    context.builder.Reserve(MostPoints(context, demand));
    if (MayOverflow(context.chart)) context.builder.SetClip(context.area.box);
    for (const Drawing& drawing : Drawings) {
        if (drawing.all == nullptr) continue;
        std::vector<int> together;
        for (const int series : demand.series)
            if (context.plotted.MarkOf(series) == drawing.mark) together.push_back(series);
        drawing.all(context, together);
    }
    for (const int series : demand.series) {
        const Drawing* drawing = DrawingOf(context.plotted.MarkOf(series));
        if (drawing != nullptr && drawing->one != nullptr) drawing->one(context, series);
    }
    LayOutStatistics(context);
    context.builder.SetClip({});
}

} // namespace

PlottedArea LayOutCartesian(const LayoutContext& context, const Box& box) {
    PlottedArea finished;
    finished.plotted = PlottedValues(context.chart);
    const PlotDemand demand = DemandOf(context.chart, finished.plotted);
    WarnOf(context, demand);
    const double names = DirectNamesWidth(context, box);
    const Box room{box.left, box.top, box.right - names, box.bottom};
    const AxesPlan plan = PlanThatFits(context, demand, finished.plotted, room);
    finished.area = plan.area;
    finished.bars = ClusterOf(context.chart.Plot, finished.plotted, finished.area);
    context.builder.AddRectangle({PartCode::Plot}, plan.area.box, {});
    LayOutGrid(context, demand, plan);
    const PlotContext plot{context, finished};
    LayOutMarks(plot, demand);
    LayOutAxes(context, demand, plan, room);
    if (names > 0) LayOutDirectNames(plot);
    LayOutDataLabels(plot, room);
    return finished;
}

} // namespace QmChart6

#include "chartcontrol/layout/axes/AxesPlan.h"
#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/data/XYPairs.h"

#include <cmath>

namespace QmChart6 {

namespace {

void IncludeAll(ValueRange& range, const Values& values) {
    if (values.whole != nullptr) {
        range.Include(ValueRange{values.whole->low, values.whole->high});
        return;
    }
    for (int i = 0; i < values.count; ++i) range.Include(values[i]);
}

void AddXY(PlotDemand& demand, const Chart& chart, int number) {
    ValueRange& upright =
        chart.Plot.SeriesCollection(number).SecondaryAxis ? demand.secondary : demand.primary;
    const XYPairs pairs(chart, number);
    ValueRange x;
    ValueRange y;
    for (int i = 0; i < pairs.Count(); ++i) {
        if (std::isnan(pairs.X(i) + pairs.Y(i))) continue;
        x.Include(pairs.X(i));
        y.Include(pairs.Y(i));
    }
    demand.across.Include(x);
    upright.Include(y);
    demand.others.push_back(number);
}

void AddSeries(PlotDemand& demand, const Chart& chart, const PlottedValues& plotted, int number) {
    const Series& series = chart.Plot.SeriesCollection(number);
    IncludeAll(series.SecondaryAxis ? demand.secondary : demand.primary, plotted.Top(number));
    switch (MarkKindOf(chart, number)) {
    case MarkKind::Bar:
        demand.bars.push_back(number);
        break;
    case MarkKind::Area:
        demand.areas.push_back(number);
        break;
    case MarkKind::Line:
    case MarkKind::Step:
    case MarkKind::XY:
    case MarkKind::Pie:
        demand.others.push_back(number);
        break;
    }
}

} // namespace

bool StandsOnEnds(const Chart& chart) {
    const int count = chart.Plot.SeriesCollection.Count();
    for (int number = 1; number <= count; ++number)
        if (MarkKindOf(chart, number) != MarkKind::Area) return false;
    return count > 0 && chart.CategoryCount() > 1;
}

PlotDemand DemandOf(const Chart& chart, const PlottedValues& plotted) {
    PlotDemand demand;
    demand.isXY = chart.chartType() == ChartType::XY2D;
    for (int number = 1; number <= chart.Plot.SeriesCollection.Count(); ++number) {
        if (!IsDrawn(chart, number)) continue;
        demand.usesSecondary = demand.usesSecondary || chart.Plot.SeriesCollection(number).SecondaryAxis;
        if (demand.isXY)
            AddXY(demand, chart, number);
        else
            AddSeries(demand, chart, plotted, number);
    }
    demand.keepZero = !demand.bars.empty() || !demand.areas.empty() || plotted.IsChanged();
    demand.onEnds = StandsOnEnds(chart);
    return demand;
}

} // namespace QmChart6

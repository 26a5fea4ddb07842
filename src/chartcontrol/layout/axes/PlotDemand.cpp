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

void IncludePairs(PlotDemand& demand, const Chart& chart, int number) {
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
}

/// Whether the first and the last category stand on the ends of the axis: where all series are areas, or
/// lines that bear their names at their ends.
bool StandsOnEnds(const Chart& chart) {
    const int count = chart.Plot.SeriesCollection.Count();
    for (int number = 1; number <= count; ++number) {
        const Mark mark = MarkOfSeries(chart, number);
        if (!KindOf(mark).reachesEnds && !(chart.Plot.DirectNames && mark == Mark::Line)) return false;
    }
    return count > 0 && chart.CategoryCount() > 1;
}

} // namespace

PlotDemand DemandOf(const Chart& chart, const PlottedValues& plotted) {
    PlotDemand demand;
    demand.pairsColumns = PairsColumns(chart);
    demand.keepZero = plotted.IsChanged();
    for (int number = 1; number <= chart.Plot.SeriesCollection.Count(); ++number) {
        if (!plotted.IsDrawn(number)) continue;
        demand.series.push_back(number);
        demand.keepZero = demand.keepZero || KindOf(plotted.MarkOf(number)).standsOnZero;
        demand.usesSecondary = demand.usesSecondary || plotted.IsSecondary(number);
        demand.hasBars = demand.hasBars || plotted.MarkOf(number) == Mark::Bar;
        if (demand.pairsColumns)
            IncludePairs(demand, chart, number);
        else
            IncludeAll(plotted.IsSecondary(number) ? demand.secondary : demand.primary, plotted.Top(number));
    }
    demand.onEnds = StandsOnEnds(chart);
    return demand;
}

} // namespace QmChart6

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

bool IsLogarithmic(const Chart& chart, AxisId axis) {
    return chart.Plot.Axis(axis).AxisScale.Type == ScaleType::Logarithmic;
}

void IncludePairs(PlotDemand& demand, const Chart& chart, int number) {
    AxisDemand& upright =
        chart.Plot.SeriesCollection(number).SecondaryAxis ? demand.secondary : demand.primary;
    const XYPairs pairs(chart, number);
    ValueRange x;
    ValueRange y;
    for (int i = 0; i < pairs.Count(); ++i) {
        if (!pairs.Has(i)) continue;
        if ((demand.across.logarithmic && pairs.X(i) <= 0) || (upright.logarithmic && pairs.Y(i) <= 0)) {
            ++demand.withoutPlace;
            continue;
        }
        x.Include(pairs.X(i));
        y.Include(pairs.Y(i));
    }
    demand.across.range.Include(x);
    upright.range.Include(y);
}

/// Ranges wider than this are never divided into steps of less than one.
constexpr double WidestOfParts = 12;

bool MightHaveParts(const ValueRange& range) {
    return !range.IsEmpty() && range.high / 2 - range.low / 2 <= WidestOfParts / 2;
}

bool IsWhole(double value) {
    return std::isnan(value) || value == std::nearbyint(value);
}

bool AreWhole(const Values& values) {
    for (int i = 0; i < values.count; ++i)
        if (!IsWhole(values[i])) return false;
    return true;
}

bool AreWhole(const XYPairs& pairs, bool across) {
    for (int i = 0; i < pairs.Count(); ++i)
        if (pairs.Has(i) && !IsWhole(across ? pairs.X(i) : pairs.Y(i))) return false;
    return true;
}

/// Finds out which axes carry whole numbers, where it matters.
void FindWholes(PlotDemand& demand, const Chart& chart, const PlottedValues& plotted) {
    for (AxisDemand* axis : {&demand.across, &demand.primary, &demand.secondary})
        axis->whole = MightHaveParts(axis->range);
    for (const int number : demand.series) {
        AxisDemand& upright = plotted.IsSecondary(number) ? demand.secondary : demand.primary;
        if (demand.pairsColumns) {
            const XYPairs pairs(chart, number);
            demand.across.whole = demand.across.whole && AreWhole(pairs, true);
            upright.whole = upright.whole && AreWhole(pairs, false);
        } else {
            upright.whole = upright.whole && !plotted.IsShare(number) && AreWhole(plotted.Top(number));
        }
    }
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
    demand.withoutPlace = plotted.WithoutPlace();
    demand.across.logarithmic = demand.pairsColumns && IsLogarithmic(chart, AxisId::X);
    demand.primary.logarithmic = IsLogarithmic(chart, AxisId::Y);
    demand.secondary.logarithmic = IsLogarithmic(chart, AxisId::SecondaryY);
    for (int number = 1; number <= chart.Plot.SeriesCollection.Count(); ++number) {
        if (!plotted.IsDrawn(number)) continue;
        demand.series.push_back(number);
        demand.keepZero = demand.keepZero || KindOf(plotted.MarkOf(number)).standsOnZero;
        demand.usesSecondary = demand.usesSecondary || plotted.IsSecondary(number);
        demand.hasBars = demand.hasBars || plotted.MarkOf(number) == Mark::Bar;
        if (demand.pairsColumns)
            IncludePairs(demand, chart, number);
        else
            IncludeAll((plotted.IsSecondary(number) ? demand.secondary : demand.primary).range,
                       plotted.Top(number));
    }
    demand.onEnds = StandsOnEnds(chart);
    FindWholes(demand, chart, plotted);
    return demand;
}

void WarnOf(const LayoutContext& context, const PlotDemand& demand) {
    if (!demand.HasValues()) context.builder.Warn(QStringLiteral("there is no value to show"));
    if (demand.withoutPlace == 0) return;
    const QString sentence =
        demand.withoutPlace == 1
            ? QStringLiteral("%1 value is not above zero and has no place on a logarithmic axis")
            : QStringLiteral("%1 values are not above zero and have no place on a logarithmic axis");
    context.builder.Warn(sentence.arg(demand.withoutPlace));
}

} // namespace QmChart6

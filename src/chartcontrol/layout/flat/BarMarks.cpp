#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/flat/BarCluster.h"
#include "chartcontrol/layout/flat/Marks.h"
#include "chartcontrol/layout/flat/Runs.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

constexpr double WidestShare = 1.0 / 6;
/// In bars narrower than this many device pixels a pattern would not be seen as one.
constexpr double NarrowestPatterned = 5;

SceneFill BarFill(const Brush& brush, bool plain) {
    return plain && brush.Style != BrushStyle::None ? SolidFill(brush.FillColor) : FillOf(brush);
}

void LayOutSingleBars(const PlotContext& context, int number, double left, double width) {
    const bool plain = width * context.area.pixelsPerPoint < NarrowestPatterned;
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const LinearMap& map = context.MapOf(number);
    const Values tops = context.plotted.Top(number);
    const Values bases = context.plotted.Base(number);
    for (int category = 0; category < tops.count; ++category) {
        if (std::isnan(tops[category])) continue;
        const DataPoint& look = series.DataPoints.Item(category + 1);
        const double x = context.area.CategoryX(category) + left;
        const double y = map.At(tops[category]);
        const double base = bases.first == nullptr ? PlotArea::BaseOf(map) : map.At(bases[category]);
        context.builder.AddRectangle({PartCode::Series, number, category + 1},
                                     {x, std::min(y, base), x + width, std::max(y, base)},
                                     BarFill(look.Brush, plain), StrokeOf(look.EdgePen));
    }
}

/// Where categories are thinner than a device pixel: one bar for each pixel column, from its least to its
/// greatest.
void LayOutDenseBars(const PlotContext& context, int number) {
    const LinearMap& map = context.MapOf(number);
    const double base = PlotArea::BaseOf(map);
    const SceneFill fill =
        BarFill(context.chart.Plot.SeriesCollection(number).DataPoints.Item(DataPoints::All).Brush, true);
    const std::shared_ptr<const Runs> runs = CollectRuns(context.plotted.Top(number), context.area);
    const double column = 1 / context.area.pixelsPerPoint;
    const auto columnOf = [&](const Sample& sample) {
        return std::floor((context.area.CategoryX(sample.category) - context.area.box.left) / column);
    };
    for (std::size_t i = 0; i < runs->samples.size();) {
        const double index = columnOf(runs->samples[i]);
        double top = base;
        double bottom = base;
        for (; i < runs->samples.size() && columnOf(runs->samples[i]) == index; ++i) {
            const double y = map.At(runs->samples[i].value);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
        const double x = context.area.box.left + index * column;
        context.builder.AddRectangle({PartCode::Series, number}, {x, top, x + column, bottom}, fill);
    }
}

} // namespace

BarCluster ClusterOf(const PlotContext& context, const std::vector<int>& series) {
    const Plot& plot = context.chart.Plot;
    std::vector<int> places;
    for (const int number : series) {
        const int axis = plot.SeriesCollection(number).SecondaryAxis ? 1 : 0;
        places.push_back(context.plotted.IsStacked() ? axis : static_cast<int>(places.size()));
    }
    const int first = places.empty() ? 0 : *std::min_element(places.begin(), places.end());
    const int bars = places.empty() ? 1 : *std::max_element(places.begin(), places.end()) - first + 1;
    const double gap = plot.BarGap / 100;
    const double widths = bars + (bars - 1) * gap + std::max(0.0, plot.XGap / 100);
    const double width =
        std::min(context.area.slot / std::max(widths, 1e-9), WidestShare * context.area.box.Width());
    const double pitch = width * (1 + gap);
    BarCluster cluster{width, {}};
    for (const int place : places)
        cluster.left.push_back((place - first) * pitch - (width + (bars - 1) * pitch) / 2);
    return cluster;
}

void LayOutBars(const PlotContext& context, const std::vector<int>& series) {
    const BarCluster cluster = ClusterOf(context, series);
    const bool dense = context.area.slot * context.area.pixelsPerPoint < 1;
    // Dense bars all stand on the axis, so that of piled ones the lower must cover the higher.
    for (std::size_t i = 0; dense && i < series.size(); ++i)
        LayOutDenseBars(context, context.plotted.IsStacked() ? series[series.size() - 1 - i] : series[i]);
    for (std::size_t i = 0; !dense && i < series.size(); ++i)
        LayOutSingleBars(context, series[i], cluster.left[i], cluster.barWidth);
}

} // namespace QmChart6

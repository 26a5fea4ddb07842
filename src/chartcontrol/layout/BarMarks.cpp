#include "chartcontrol/layout/BarCluster.h"
#include "chartcontrol/layout/Marks.h"
#include "chartcontrol/layout/Runs.h"
#include "chartcontrol/layout/SeriesLook.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// In bars narrower than this many device pixels a pattern would not be seen as one.
constexpr double NarrowestPatterned = 5;

SceneFill BarFill(const Brush& brush, bool plain) {
    return plain && brush.Style != BrushStyle::None ? SolidFill(brush.FillColor) : FillOf(brush);
}

void LayOutSingleBars(const LayoutContext& context, const PlotArea& area, int number, double left,
                      double width) {
    const bool plain = width * area.pixelsPerPoint < NarrowestPatterned;
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const LinearMap& map = area.MapOf(series);
    const double base = PlotArea::BaseOf(map);
    const Values values = context.chart.SeriesValues(number);
    for (int category = 0; category < values.count; ++category) {
        if (std::isnan(values[category])) continue;
        const DataPoint& look = series.DataPoints.Item(category + 1);
        const double x = area.CategoryX(category) + left;
        const double y = map.At(values[category]);
        context.builder.AddRectangle({PartCode::Series, number, category + 1},
                                     {x, std::min(y, base), x + width, std::max(y, base)},
                                     BarFill(look.Brush, plain), StrokeOf(look.EdgePen));
    }
}

/// Where categories are thinner than a device pixel: one bar for each pixel column, from its least to its
/// greatest.
void LayOutDenseBars(const LayoutContext& context, const PlotArea& area, int number, Runs& runs) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const LinearMap& map = area.MapOf(series);
    const double base = PlotArea::BaseOf(map);
    const SceneFill fill = BarFill(series.DataPoints.Item(DataPoints::All).Brush, true);
    CollectRuns(context.chart.SeriesValues(number), area, runs);
    const double column = 1 / area.pixelsPerPoint;
    const auto columnOf = [&](const Sample& sample) {
        return std::floor((area.CategoryX(sample.category) - area.box.left) / column);
    };
    for (std::size_t i = 0; i < runs.samples.size();) {
        const double index = columnOf(runs.samples[i]);
        double top = base;
        double bottom = base;
        for (; i < runs.samples.size() && columnOf(runs.samples[i]) == index; ++i) {
            const double y = map.At(runs.samples[i].value);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
        const double x = area.box.left + index * column;
        context.builder.AddRectangle({PartCode::Series, number}, {x, top, x + column, bottom}, fill);
    }
}

} // namespace

BarCluster ClusterOf(const Plot& plot, const PlotArea& area, int bars) {
    constexpr double widestShare = 1.0 / 6;
    const double gap = plot.BarGap / 100;
    const double widths = bars + (bars - 1) * gap + std::max(0.0, plot.XGap / 100);
    const double width = std::min(area.slot / std::max(widths, 1e-9), widestShare * area.box.Width());
    const double pitch = width * (1 + gap);
    return {width, pitch, -(width + (bars - 1) * pitch) / 2};
}

void LayOutBars(const LayoutContext& context, const PlotArea& area, const std::vector<int>& numbers) {
    const BarCluster cluster = ClusterOf(context.chart.Plot, area, static_cast<int>(numbers.size()));
    Runs runs;
    double left = cluster.left;
    for (const int number : numbers) {
        if (area.slot * area.pixelsPerPoint < 1)
            LayOutDenseBars(context, area, number, runs);
        else
            LayOutSingleBars(context, area, number, left, cluster.barWidth);
        left += cluster.pitch;
    }
}

} // namespace QmChart6

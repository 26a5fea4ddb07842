#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/flat/Marks.h"
#include "chartcontrol/layout/flat/Runs.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// In bars narrower than this many device pixels a pattern would not be seen as one.
constexpr double NarrowestPatterned = 5;

SceneFill BarFill(const Brush& brush, bool plain) {
    return plain && brush.Style != BrushStyle::None ? SolidFill(brush.FillColor) : FillOf(brush);
}

void LayOutSingleBars(const PlotContext& context, int number) {
    const bool plain = context.plot.bars.barWidth * context.area.pixelsPerPoint < NarrowestPatterned;
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const Values tops = context.plotted.Top(number);
    for (int category = 0; category < tops.count; ++category) {
        if (std::isnan(tops[category])) continue;
        const DataPoint& look = series.DataPoints.Item(category + 1);
        context.builder.AddRectangle({PartCode::Series, number, category + 1},
                                     context.plot.BarOf(number, category), BarFill(look.Brush, plain),
                                     StrokeOf(look.EdgePen));
    }
}

/// Where categories are thinner than a device pixel: one bar for each pixel column, from its least to its
/// greatest.
void LayOutDenseBars(const PlotContext& context, int number) {
    const AxisMap& map = context.plot.MapOf(number);
    const double base = map.Base();
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

void LayOutBars(const PlotContext& context, const std::vector<int>& series) {
    const bool dense = context.plot.IsDense();
    for (std::size_t i = 0; i < series.size(); ++i) {
        // Dense bars all stand on the axis, so that of piled ones the lower must cover the higher.
        if (dense)
            LayOutDenseBars(context, context.plotted.IsStacked() ? series[series.size() - 1 - i] : series[i]);
        else
            LayOutSingleBars(context, series[i]);
    }
}

} // namespace QmChart6

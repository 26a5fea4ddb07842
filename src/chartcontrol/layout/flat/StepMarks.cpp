#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/flat/Marks.h"
#include "chartcontrol/layout/flat/Runs.h"

namespace QmChart6 {

void LayOutStep(const PlotContext& context, int number) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const AxisMap& map = context.plot.MapOf(number);
    const std::shared_ptr<const Runs> collected = CollectRuns(context.plotted.Top(number), context.area);
    const Runs& runs = *collected;
    for (std::size_t run = 0; run < runs.Count(); ++run) {
        for (std::size_t i = runs.starts[run]; i < runs.starts[run + 1]; ++i) {
            const double x = context.area.CategoryX(runs.samples[i].category);
            const double y = map.At(runs.samples[i].value);
            context.builder.AddPoint({x - context.area.slot / 2, y});
            context.builder.AddPoint({x + context.area.slot / 2, y});
        }
        Stroke stroke = LineStrokeOf(context.chart, series);
        if (stroke.style == PenStyle::None) stroke.style = PenStyle::Solid;
        context.builder.AddPolyline({PartCode::Series, number}, stroke);
    }
}

} // namespace QmChart6

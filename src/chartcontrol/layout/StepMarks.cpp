#include "chartcontrol/layout/Marks.h"
#include "chartcontrol/layout/Runs.h"
#include "chartcontrol/layout/SeriesLook.h"

namespace QmChart6 {

void LayOutStep(const LayoutContext& context, const PlotArea& area, int number) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const LinearMap& map = area.MapOf(series);
    Runs runs;
    CollectRuns(context.chart.SeriesValues(number), area, runs);
    for (std::size_t run = 0; run < runs.Count(); ++run) {
        for (std::size_t i = runs.starts[run]; i < runs.starts[run + 1]; ++i) {
            const double x = area.CategoryX(runs.samples[i].category);
            const double y = map.At(runs.samples[i].value);
            context.builder.AddPoint({x - area.slot / 2, y});
            context.builder.AddPoint({x + area.slot / 2, y});
        }
        Stroke stroke = LineStrokeOf(series);
        if (stroke.style == PenStyle::None) stroke.style = PenStyle::Solid;
        context.builder.AddPolyline({PartCode::Series, number}, stroke);
    }
}

} // namespace QmChart6

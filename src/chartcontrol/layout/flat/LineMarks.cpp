#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/flat/MarkerMarks.h"
#include "chartcontrol/layout/flat/Marks.h"
#include "chartcontrol/layout/flat/Runs.h"

namespace QmChart6 {

namespace {

void LayOutRuns(const PlotContext& context, int number, const Runs& runs) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const AxisMap& map = context.plot.MapOf(number);
    for (std::size_t run = 0; run < runs.Count(); ++run) {
        if (runs.starts[run + 1] - runs.starts[run] < 2) continue;
        for (std::size_t i = runs.starts[run]; i < runs.starts[run + 1]; ++i)
            context.builder.AddPoint(
                {context.area.CategoryX(runs.samples[i].category), map.At(runs.samples[i].value)});
        context.builder.AddPolyline({PartCode::Series, number}, LineStrokeOf(context.chart, series));
    }
}

} // namespace

void LayOutLine(const PlotContext& context, int number) {
    const LineLook look = LineLookOf(context.chart.Plot.SeriesCollection(number));
    const std::shared_ptr<const Runs> collected = CollectRuns(context.plotted.Top(number), context.area);
    const Runs& runs = *collected;
    if (look.line) LayOutRuns(context, number, runs);
    if (look.markers)
        LayOutMarkers(context, number, runs);
    else
        LayOutLoneSamples(context, number, runs);
}

} // namespace QmChart6

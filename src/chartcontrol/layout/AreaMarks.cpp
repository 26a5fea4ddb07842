#include "chartcontrol/layout/Marks.h"
#include "chartcontrol/layout/Runs.h"
#include "chartcontrol/layout/SeriesLook.h"

namespace QmChart6 {

namespace {

void AddEdgePoints(const LayoutContext& context, const PlotArea& area, const LinearMap& map, const Runs& runs,
                   std::size_t run) {
    for (std::size_t i = runs.starts[run]; i < runs.starts[run + 1]; ++i)
        context.builder.AddPoint({area.CategoryX(runs.samples[i].category), map.At(runs.samples[i].value)});
}

/// A value alone between missing ones has no width of its own; it gets this part of its slot.
constexpr double LoneShare = 0.1;

void AddFill(const LayoutContext& context, const PlotArea& area, int number, const Runs& runs) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const LinearMap& map = area.MapOf(series);
    const double base = PlotArea::BaseOf(map);
    for (std::size_t run = 0; run < runs.Count(); ++run) {
        const Sample& first = runs.samples[runs.starts[run]];
        const Sample& last = runs.samples[runs.starts[run + 1] - 1];
        const double lone = &first == &last ? LoneShare * area.slot / 2 : 0;
        context.builder.AddPoint({area.CategoryX(first.category) - lone, base});
        if (lone > 0) {
            context.builder.AddPoint({area.CategoryX(first.category) - lone, map.At(first.value)});
            context.builder.AddPoint({area.CategoryX(first.category) + lone, map.At(first.value)});
        } else {
            AddEdgePoints(context, area, map, runs, run);
        }
        context.builder.AddPoint({area.CategoryX(last.category) + lone, base});
        const DataPoint& look = series.DataPoints.Item(DataPoints::All);
        context.builder.AddPolygon({PartCode::Series, number}, FillOf(look.Brush));
    }
}

} // namespace

void LayOutAreas(const LayoutContext& context, const PlotArea& area, const std::vector<int>& numbers) {
    Runs runs;
    for (const int number : numbers) {
        CollectRuns(context.chart.SeriesValues(number), area, runs);
        AddFill(context, area, number, runs);
    }
    for (const int number : numbers) {
        const Series& series = context.chart.Plot.SeriesCollection(number);
        CollectRuns(context.chart.SeriesValues(number), area, runs);
        for (std::size_t run = 0; run < runs.Count(); ++run) {
            AddEdgePoints(context, area, area.MapOf(series), runs, run);
            context.builder.AddPolyline({PartCode::Series, number}, LineStrokeOf(series));
        }
    }
}

} // namespace QmChart6

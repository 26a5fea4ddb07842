#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/flat/Marks.h"
#include "chartcontrol/layout/flat/Runs.h"

#include <algorithm>

namespace QmChart6 {

namespace {

/// A value alone between missing ones has no width of its own; it gets this part of its slot.
constexpr double LoneShare = 0.1;

void AddEdgePoints(const PlotContext& context, int number, const Runs& runs, std::size_t run) {
    const AxisMap& map = context.plot.MapOf(number);
    for (std::size_t i = runs.starts[run]; i < runs.starts[run + 1]; ++i)
        context.builder.AddPoint(
            {context.area.CategoryX(runs.samples[i].category), map.At(runs.samples[i].value)});
}

/// The way back along what a series is piled on.
void AddBasePoints(const PlotContext& context, int number, const Values& bases, const Runs& runs,
                   std::size_t run) {
    const AxisMap& map = context.plot.MapOf(number);
    for (std::size_t i = runs.starts[run + 1]; i-- > runs.starts[run];) {
        const int category = runs.samples[i].category;
        context.builder.AddPoint({context.area.CategoryX(category), map.StandAt(bases[category])});
    }
}

void AddRun(const PlotContext& context, int number, const Runs& runs, std::size_t run, const Values& bases) {
    const Sample& first = runs.samples[runs.starts[run]];
    const Sample& last = runs.samples[runs.starts[run + 1] - 1];
    const double start = context.area.CategoryX(first.category);
    const double end = context.area.CategoryX(last.category);
    if (&first == &last) {
        const double lone = LoneShare * context.area.slot / 2;
        const double y = context.plot.Y(number, first.value);
        const double base = bases.first == nullptr
                                ? context.plot.BaseY(number)
                                : context.plot.MapOf(number).StandAt(bases[first.category]);
        const double left = std::max(start - lone, context.area.box.left);
        const double right = std::min(start + lone, context.area.box.right);
        for (const Point& point : {Point{left, base}, Point{left, y}, Point{right, y}, Point{right, base}})
            context.builder.AddPoint(point);
        return;
    }
    if (bases.first == nullptr) context.builder.AddPoint({start, context.plot.BaseY(number)});
    AddEdgePoints(context, number, runs, run);
    if (bases.first == nullptr)
        context.builder.AddPoint({end, context.plot.BaseY(number)});
    else
        AddBasePoints(context, number, bases, runs, run);
}

/// Areas that may cover each other let the others shine through.
SceneFill FillOfArea(const Brush& brush, bool alone) {
    constexpr double translucent = 0.5;
    SceneFill fill = FillOf(brush);
    if (!alone && brush.Style != BrushStyle::None) fill.opacity = translucent;
    return fill;
}

void AddFill(const PlotContext& context, int number, const Values& bases, bool alone = true) {
    const std::shared_ptr<const Runs> collected = CollectRuns(context.plotted.Top(number), context.area);
    const Runs& runs = *collected;
    const DataPoint& look = context.chart.Plot.SeriesCollection(number).DataPoints.Item(DataPoints::All);
    for (std::size_t run = 0; run < runs.Count(); ++run) {
        AddRun(context, number, runs, run, bases);
        context.builder.AddPolygon({PartCode::Series, number}, FillOfArea(look.Brush, alone));
    }
}

void AddEdges(const PlotContext& context, const std::vector<int>& series) {
    for (const int number : series) {
        const std::shared_ptr<const Runs> collected = CollectRuns(context.plotted.Top(number), context.area);
        const Runs& runs = *collected;
        for (std::size_t run = 0; run < runs.Count(); ++run) {
            AddEdgePoints(context, number, runs, run);
            context.builder.AddPolyline(
                {PartCode::Series, number},
                LineStrokeOf(context.chart, context.chart.Plot.SeriesCollection(number)));
        }
    }
}

} // namespace

void LayOutAreas(const PlotContext& context, const std::vector<int>& series) {
    if (!context.plotted.IsStacked()) {
        for (const int number : series) AddFill(context, number, {}, series.size() == 1);
        AddEdges(context, series);
        return;
    }
    // Piled areas reach down to the axis and the lower cover the higher: no seam shows between two that
    // touch. Where one is open, what lies behind it must not show, so that all are drawn as bands.
    const bool bands = std::any_of(series.begin(), series.end(), [&](int number) {
        return context.chart.Plot.SeriesCollection(number).DataPoints.Item(DataPoints::All).Brush.Style ==
               BrushStyle::None;
    });
    for (std::size_t i = series.size(); i-- > 0;)
        AddFill(context, series[i], bands ? context.plotted.Base(series[i]) : Values{});
}

} // namespace QmChart6

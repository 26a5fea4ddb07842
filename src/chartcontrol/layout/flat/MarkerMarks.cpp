#include "chartcontrol/layout/flat/MarkerMarks.h"

#include "chartcontrol/layout/data/SeriesLook.h"

#include <algorithm>

namespace QmChart6 {

namespace {

/// A lone sample's dot as a multiple of its line's width.
constexpr double DotFactor = 2.5;

SceneFill MarkerFill(const DataPoint& look) {
    return SolidFill(look.Brush.FillColor);
}

} // namespace

void LayOutMarkers(const PlotContext& context, int number, const Runs& runs) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const AxisMap& map = context.plot.MapOf(number);
    const DataPoint& all = series.DataPoints.Item(DataPoints::All);
    const auto place = [&](const Sample& sample) {
        context.builder.AddPoint({context.area.CategoryX(sample.category), map.At(sample.value)});
    };
    for (const Sample& sample : runs.samples)
        if (!series.DataPoints.HasOwn() || &series.DataPoints.Item(sample.category + 1) == &all)
            place(sample);
    context.builder.AddMarkers({PartCode::Series, number}, MarkerStyleOf(series, number), all.Marker.Size,
                               MarkerFill(all));
    if (!series.DataPoints.HasOwn()) return;
    for (const Sample& sample : runs.samples) {
        const DataPoint& own = series.DataPoints.Item(sample.category + 1);
        if (&own == &all) continue;
        place(sample);
        const MarkerStyle style =
            own.Marker.Style == MarkerStyle::Automatic ? MarkerStyleOf(series, number) : own.Marker.Style;
        context.builder.AddMarkers({PartCode::Series, number, sample.category + 1}, style, own.Marker.Size,
                                   MarkerFill(own));
    }
}

void AddDots(const PlotContext& context, int number) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    context.builder.AddMarkers({PartCode::Series, number}, MarkerStyle::Circle,
                               DotFactor * series.LinePen.Width,
                               SolidFill(series.DataPoints.Item(DataPoints::All).Brush.FillColor));
}

void LayOutLoneSamples(const PlotContext& context, int number, const Runs& runs) {
    const AxisMap& map = context.plot.MapOf(number);
    for (std::size_t run = 0; run < runs.Count(); ++run) {
        if (runs.starts[run + 1] - runs.starts[run] != 1) continue;
        const Sample& sample = runs.samples[runs.starts[run]];
        context.builder.AddPoint({context.area.CategoryX(sample.category), map.At(sample.value)});
    }
    AddDots(context, number);
}

} // namespace QmChart6

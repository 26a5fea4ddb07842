#include "chartcontrol/layout/flat/MarkerMarks.h"

#include "chartcontrol/layout/data/SeriesLook.h"

#include <algorithm>
#include <limits>

namespace QmChart6 {

namespace {

/// A lone sample's dot as a multiple of its line's width.
constexpr double DotFactor = 2.5;

SceneFill MarkerFill(const PlotContext& context, const DataPoint& look) {
    return SolidFill(ShownColour(context.chart, look.Brush));
}

/// On a line, markers that would stand closer than they are wide are thinned, evenly; values alone between
/// missing ones keep theirs: nothing else shows them.
class Thinning {
public:
    Thinning(const PlotContext& context, const Series& series) : area_(context.area) {
        constexpr double closest = 1.25;
        constexpr double apart = 3;
        const double size = series.DataPoints.Item(DataPoints::All).Marker.Size;
        if (LineLookOf(series).line && area_.slot < closest * size) least_ = apart * size;
    }

    bool Keeps(const Sample& sample, bool alone) {
        const double x = area_.CategoryX(sample.category);
        if (alone || least_ <= 0) return true;
        if (x < next_) return false;
        next_ = x + least_ - Rounding;
        return true;
    }

private:
    static constexpr double Rounding = 1e-6;

    const PlotArea& area_;
    double least_ = 0;
    double next_ = -std::numeric_limits<double>::infinity();
};

} // namespace

void LayOutMarkers(const PlotContext& context, int number, const Runs& runs) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const AxisMap& map = context.plot.MapOf(number);
    const DataPoint& all = series.DataPoints.Item(DataPoints::All);
    const auto place = [&](const Sample& sample) {
        context.builder.AddPoint({context.area.CategoryX(sample.category), map.At(sample.value)});
    };
    Thinning thinning(context, series);
    for (std::size_t run = 0; run < runs.Count(); ++run) {
        const bool alone = runs.starts[run + 1] - runs.starts[run] == 1;
        for (std::size_t i = runs.starts[run]; i < runs.starts[run + 1]; ++i) {
            const Sample& sample = runs.samples[i];
            const bool own =
                series.DataPoints.HasOwn() && &series.DataPoints.Item(sample.category + 1) != &all;
            if (!own && thinning.Keeps(sample, alone)) place(sample);
        }
    }
    context.builder.AddMarkers({PartCode::Series, number}, MarkerStyleOf(series, number), all.Marker.Size,
                               MarkerFill(context, all));
    if (!series.DataPoints.HasOwn()) return;
    for (const Sample& sample : runs.samples) {
        const DataPoint& own = series.DataPoints.Item(sample.category + 1);
        if (&own == &all) continue;
        place(sample);
        const MarkerStyle style =
            own.Marker.Style == MarkerStyle::Automatic ? MarkerStyleOf(series, number) : own.Marker.Style;
        context.builder.AddMarkers({PartCode::Series, number, sample.category + 1}, style, own.Marker.Size,
                                   MarkerFill(context, own));
    }
}

void AddDots(const PlotContext& context, int number) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    context.builder.AddMarkers({PartCode::Series, number}, MarkerStyle::Circle,
                               DotFactor * series.LinePen.Width,
                               MarkerFill(context, series.DataPoints.Item(DataPoints::All)));
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

#include "viewer/ChartOnPaper.h"

#include "chart/ChartFunctions.h"
#include "qmchart6/RuntimeError.h"

#include <cmath>
#include <limits>
#include <utility>

namespace QmChart6 {

namespace {

constexpr double PixelsPerPageUnit = 2.4; // 96 logical pixels and 40 units to an inch
constexpr std::int32_t White = 0xFFFFFF;

/// Rounded to the nearest whole number, halves to the even one.
std::int64_t Whole(double value) {
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    const double rounded = std::nearbyint(value);
    if (!(rounded >= -most - 1 && rounded <= most)) throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<std::int64_t>(rounded);
}

void Grow(Font& font, double factor) {
    font.Size *= factor;
}

void Grow(CoordinateRect& rect, double factor) {
    for (Coordinate* corner : {&rect.Min, &rect.Max}) {
        corner->X *= factor;
        corner->Y *= factor;
    }
}

void Grow(Location& location, double factor) {
    Grow(location.Rect, factor);
    location.Within = {location.Within.X * factor, location.Within.Y * factor};
}

void GrowLabels(Series& series, double factor, int pointCount) {
    Grow(series.DataPoints.Item(DataPoints::All).DataPointLabel.VtFont, factor);
    if (!series.DataPoints.HasOwn()) return;
    const DataPoint& all = series.DataPoints.Item(DataPoints::All);
    for (int point = 1; point <= pointCount; ++point) {
        // Reading first: writing would give every point a look of its own.
        if (&std::as_const(series.DataPoints).Item(point) == &all) continue;
        Grow(series.DataPoints.Item(point).DataPointLabel.VtFont, factor);
    }
}

} // namespace

double PageFactor(double pageWidth, double pageHeight, double windowWidth) {
    const std::int64_t width = Whole(windowWidth);
    const std::int64_t page = Whole(PixelsPerPageUnit * pageWidth) + Whole(PixelsPerPageUnit * pageHeight);
    if (width <= 0)
        throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("the window is at least one pixel wide"));
    return static_cast<double>(Whole(static_cast<double>(page))) /
           static_cast<double>(Whole(2.0 * static_cast<double>(width)));
}

Chart ChartOnPaper(Chart chart, double factor) {
    chart.Backdrop.Fill.Style = FillStyle::Brush;
    chart.Backdrop.Fill.Brush.Style = BrushStyle::Solid;
    SetBackgroundColor(chart, White);
    chart.Backdrop.Frame.Style = FrameStyle::None;

    Grow(chart.Title.VtFont, factor);
    Grow(chart.Legend.VtFont, factor);
    Grow(chart.Footnote.VtFont, factor);
    for (const AxisId id : {AxisId::X, AxisId::Y, AxisId::SecondaryY, AxisId::Z}) {
        Grow(chart.Plot.Axis(id).AxisTitle.VtFont, factor);
        Grow(chart.Plot.Axis(id).Labels.Item(1).VtFont, factor);
    }
    for (Series& series : chart.Plot.SeriesCollection) GrowLabels(series, factor, chart.CategoryCount());

    // What stands at an edge finds it; a place of one's own grows with the page.
    Grow(chart.Title.Location, factor);
    Grow(chart.Legend.Location, factor);
    Grow(chart.Footnote.Location, factor);
    Grow(chart.Plot.LocationRect, factor);
    return chart;
}

} // namespace QmChart6

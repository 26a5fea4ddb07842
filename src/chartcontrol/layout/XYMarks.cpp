#include "chartcontrol/layout/Marks.h"
#include "chartcontrol/layout/SeriesLook.h"
#include "chartcontrol/layout/XYPairs.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// One bit for every device pixel of the plot: of the markers that fall into the same pixel, one is drawn.
class PixelSet {
public:
    explicit PixelSet(const PlotArea& area)
        : left_(area.box.left), top_(area.box.top), scale_(area.pixelsPerPoint),
          columns_(static_cast<int>(std::ceil(area.box.Width() * scale_)) + 1),
          rows_(static_cast<int>(std::ceil(area.box.Height() * scale_)) + 1),
          taken_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)) {}

    /// Whether the point's pixel was free; it no longer is. Points outside the plot are not placed.
    bool Take(Point point) {
        const double column = (point.x - left_) * scale_;
        const double row = (point.y - top_) * scale_;
        if (!(column >= 0 && column < columns_ && row >= 0 && row < rows_)) return false;
        auto&& taken = taken_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                              static_cast<std::size_t>(column)];
        if (taken != 0) return false;
        taken = 1;
        return true;
    }

private:
    double left_;
    double top_;
    double scale_;
    int columns_;
    int rows_;
    std::vector<char> taken_;
};

/// Runs of consecutive points closer than half a device pixel are one point of the line.
void AddLine(const PlotContext& context, int number, const XYPairs& pairs) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const LinearMap& map = context.area.MapOf(series);
    const double near = 0.5 / context.area.pixelsPerPoint;
    Point before{};
    for (int i = 0; i <= pairs.Count(); ++i) {
        if (i == pairs.Count() || !pairs.Has(i)) {
            if (context.builder.PendingPoints() > 1)
                context.builder.AddPolyline({PartCode::Series, number}, LineStrokeOf(series));
            else
                context.builder.DropPendingPoints();
            continue;
        }
        const Point point{context.area.across.At(pairs.X(i)), map.At(pairs.Y(i))};
        const bool same = context.builder.PendingPoints() > 0 && std::abs(point.x - before.x) < near &&
                          std::abs(point.y - before.y) < near;
        if (same) continue;
        context.builder.AddPoint(point);
        before = point;
    }
}

void AddMarkers(const PlotContext& context, int number, const XYPairs& pairs) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const LinearMap& map = context.area.MapOf(series);
    PixelSet pixels(context.area);
    for (int i = 0; i < pairs.Count(); ++i) {
        if (!pairs.Has(i)) continue;
        const Point point{context.area.across.At(pairs.X(i)), map.At(pairs.Y(i))};
        if (pixels.Take(point)) context.builder.AddPoint(point);
    }
    const DataPoint& look = series.DataPoints.Item(DataPoints::All);
    context.builder.AddMarkers({PartCode::Series, number}, MarkerStyleOf(series, number), look.Marker.Size,
                               SolidFill(look.Brush.FillColor));
}

} // namespace

void LayOutXY(const PlotContext& context, int number) {
    const XYPairs pairs(context.chart, number);
    const LineLook look = LineLookOf(context.chart.Plot.SeriesCollection(number));
    if (look.line) AddLine(context, number, pairs);
    if (look.markers) AddMarkers(context, number, pairs);
}

} // namespace QmChart6

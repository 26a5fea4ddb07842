#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/data/XYPairs.h"
#include "chartcontrol/layout/flat/MarkerMarks.h"
#include "chartcontrol/layout/flat/Marks.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace QmChart6 {

namespace {

/// One bit for every device pixel of the plot: of the markers that fall into the same pixel, one is drawn.
class PixelSet {
public:
    explicit PixelSet(const PlotArea& area)
        : left_(area.box.left), top_(area.box.top), scale_(area.pixelsPerPoint),
          columns_(static_cast<unsigned>(std::ceil(area.box.Width() * scale_)) + 1),
          rows_(static_cast<unsigned>(std::ceil(area.box.Height() * scale_)) + 1),
          taken_(static_cast<std::size_t>(columns_) * rows_ / BitsOfWord + 1) {}

    /// Whether the point's pixel was free; it no longer is. Points outside the plot are not placed.
    bool Take(Point point) {
        const double across = (point.x - left_) * scale_;
        const double down = (point.y - top_) * scale_;
        if (!(across >= 0 && down >= 0 && across < columns_ && down < rows_)) return false;
        const std::size_t pixel =
            static_cast<std::size_t>(down) * columns_ + static_cast<std::size_t>(across);
        std::uint64_t& word = taken_[pixel / BitsOfWord];
        const std::uint64_t bit = std::uint64_t{1} << (pixel % BitsOfWord);
        if ((word & bit) != 0) return false;
        word |= bit;
        return true;
    }

private:
    static constexpr std::size_t BitsOfWord = 64;

    double left_;
    double top_;
    double scale_;
    unsigned columns_;
    unsigned rows_;
    std::vector<std::uint64_t> taken_;
};

/// Not-a-number where a value is missing, or has no place on its axis.
Point PlaceOf(const PlotContext& context, const AxisMap& map, const XYPairs& pairs, int index) {
    return {context.area.across.At(pairs.X(index)), map.At(pairs.Y(index))};
}

/// Adds the points whose pixel is free. A place that is not a number is in no pixel.
template<class Across, class Upright>
void TakePixels(const PlotContext& context, const XYPairs& pairs, const Across& across, const Upright& up) {
    PixelSet pixels(context.area);
    const int count = pairs.Count();
    for (int i = 0; i < count; ++i) {
        const Point point{across.At(pairs.X(i)), up.At(pairs.Y(i))};
        if (pixels.Take(point)) context.builder.AddPoint(point);
    }
}

/// The line through the points, interrupted by missing ones. Runs of consecutive points closer than half a
/// device pixel are one point of the line; a run of a single one is no line. Gives those.
std::vector<Point> AddLine(const PlotContext& context, int number, const XYPairs& pairs) {
    const Stroke stroke = LineStrokeOf(context.chart, context.chart.Plot.SeriesCollection(number));
    const AxisMap& map = context.plot.MapOf(number);
    const double near = 0.5 / context.area.pixelsPerPoint;
    std::vector<Point> alone;
    Point before{};
    for (int i = 0; i <= pairs.Count(); ++i) {
        const Point point = i == pairs.Count() ? Point{} : PlaceOf(context, map, pairs, i);
        if (i == pairs.Count() || std::isnan(point.x) || std::isnan(point.y)) {
            if (context.builder.PendingPoints() == 1) {
                alone.push_back(before);
                context.builder.DropPendingPoints();
            }
            context.builder.AddPolyline({PartCode::Series, number}, stroke);
            continue;
        }
        const bool same = context.builder.PendingPoints() > 0 && std::abs(point.x - before.x) < near &&
                          std::abs(point.y - before.y) < near;
        if (same) continue;
        context.builder.AddPoint(point);
        before = point;
    }
    return alone;
}

/// How many points lie so close to an earlier one that their markers may overlap.
int OverlappingPoints(const PlotContext& context, double size) {
    constexpr double reach = 1.5;
    PlotArea coarse = context.area;
    coarse.pixelsPerPoint = 1 / (reach * std::max(1.0, size));
    PixelSet cells(coarse);
    int overlapping = 0;
    for (const Point& point : context.builder.Pending()) overlapping += cells.Take(point) ? 0 : 1;
    return overlapping;
}

bool HasInside(MarkerStyle style) {
    return style != MarkerStyle::Plus && style != MarkerStyle::Cross && style != MarkerStyle::Star;
}

/// Points that hide each other are drawn hollow; in large crowds that would hide no less.
bool AreHollow(const PlotContext& context, MarkerStyle style, double size) {
    constexpr std::size_t crowd = 5000;
    constexpr double most = 0.15;
    const std::size_t count = context.builder.PendingPoints();
    return HasInside(style) && count > 1 && count <= crowd &&
           OverlappingPoints(context, size) > most * static_cast<double>(count);
}

void AddMarkers(const PlotContext& context, int number, const XYPairs& pairs) {
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const AxisMap& map = context.plot.MapOf(number);
    const AxisMap& across = context.area.across;
    // There may be a great many points: lines are mapped without asking each time.
    if (across.IsLine() && map.IsLine())
        TakePixels(context, pairs, across.AsLine(), map.AsLine());
    else
        TakePixels(context, pairs, across, map);
    const DataPoint& look = series.DataPoints.Item(DataPoints::All);
    const MarkerStyle style = MarkerStyleOf(series, number);
    const Colour colour = ShownColour(context.chart, look.Brush);
    const double size = look.Marker.Size;
    if (!AreHollow(context, style, size)) {
        context.builder.AddMarkers({PartCode::Series, number}, style, size, SolidFill(colour));
        return;
    }
    constexpr double rimShare = 0.2;
    const double rim = std::max(1.0, rimShare * size);
    context.builder.AddMarkers({PartCode::Series, number}, style, size - rim, {},
                               {PenStyle::Solid, rim, colour});
}

} // namespace

void LayOutXY(const PlotContext& context, int number) {
    const XYPairs pairs(context.chart, number);
    const LineLook look = LineLookOf(context.chart.Plot.SeriesCollection(number));
    std::vector<Point> alone;
    if (look.line) alone = AddLine(context, number, pairs);
    if (look.markers) {
        AddMarkers(context, number, pairs);
        return;
    }
    for (const Point& point : alone) context.builder.AddPoint(point);
    AddDots(context, number);
}

} // namespace QmChart6

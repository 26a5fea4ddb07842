#include "chartcontrol/layout/flat/FlatPlaces.h"

#include "chartcontrol/layout/data/XYPairs.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

/// Rounding that a place at the very edge of the plot is allowed, in points.
constexpr double Rounding = 1e-6;

/// The middle of what of the box is within the plot; nothing where all of it is outside.
std::optional<Point> MiddleWithin(const Box& plot, const Box& box) {
    const Box seen{std::max(plot.left, box.left), std::max(plot.top, box.top),
                   std::min(plot.right, box.right), std::min(plot.bottom, box.bottom)};
    if (seen.Width() < -Rounding || seen.Height() < -Rounding) return std::nullopt;
    return seen.Center();
}

std::optional<Point> Within(const Box& plot, Point place) {
    return plot.Grown(Rounding).Contains(place) ? std::optional(place) : std::nullopt;
}

XYPairs PairsOf(const PlottedValues& plotted, int series) {
    return {plotted.Top(series), series < plotted.SeriesCount() ? plotted.Top(series + 1) : Values{}};
}

Point PlaceOf(const PlottedArea& plot, int series, const XYPairs& pairs, int index) {
    return {plot.area.across.At(pairs.X(index)), plot.Y(series, pairs.Y(index))};
}

} // namespace

std::optional<Point> FlatPlaces::At(DataPointHit point) const {
    const int category = point.category - 1;
    const double value = plot_.plotted.Top(point.series)[category];
    if (std::isnan(value)) return std::nullopt;
    if (plot_.plotted.MarkOf(point.series) == Mark::Bar)
        return MiddleWithin(plot_.area.box, plot_.BarOf(point.series, category));
    return Within(plot_.area.box, {plot_.area.CategoryX(category), plot_.Y(point.series, value)});
}

std::optional<DataPointHit> FlatPlaces::Nearest(int series, Point place) const {
    const Values values = plot_.plotted.Top(series);
    if (values.count == 0) return std::nullopt;
    const double across = (place.x - plot_.area.firstX) / plot_.area.slot;
    const int asked =
        static_cast<int>(std::lround(std::clamp(across, 0.0, static_cast<double>(values.count - 1))));
    for (int away = 0; away < values.count; ++away)
        for (const int category : {asked - away, asked + away})
            if (category >= 0 && category < values.count && !std::isnan(values[category]))
                return DataPointHit{series, category + 1};
    return std::nullopt;
}

std::optional<Point> PairPlaces::At(DataPointHit point) const {
    if (!plot_.plotted.IsDrawn(point.series)) return std::nullopt;
    const XYPairs pairs = PairsOf(plot_.plotted, point.series);
    const int index = point.category - 1;
    if (!pairs.Has(index)) return std::nullopt;
    return Within(plot_.area.box, PlaceOf(plot_, point.series, pairs, index));
}

std::optional<DataPointHit> PairPlaces::Nearest(int series, Point place) const {
    if (!plot_.plotted.IsDrawn(series)) return std::nullopt;
    const XYPairs pairs = PairsOf(plot_.plotted, series);
    std::optional<DataPointHit> nearest;
    double least = std::numeric_limits<double>::infinity();
    for (int index = 0; index < pairs.Count(); ++index) {
        if (!pairs.Has(index)) continue;
        const Point point = PlaceOf(plot_, series, pairs, index);
        const double distance = std::hypot(point.x - place.x, point.y - place.y);
        if (distance < least) least = distance, nearest = DataPointHit{series, index + 1};
    }
    return nearest;
}

} // namespace QmChart6

#include "chartcontrol/widget/HandMove.h"

#include "chartcontrol/model/Places.h"
#include "chartcontrol/scene/Scene.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace QmChart6 {

namespace {

/// So near to a place a part is drawn to it.
constexpr double Reach = 8;
/// What layout leaves free round a chart's parts.
constexpr double Margin = 12;

constexpr std::array Places{LocationType::TopLeft,    LocationType::Top,    LocationType::TopRight,
                            LocationType::Left,       LocationType::Custom, LocationType::Right,
                            LocationType::BottomLeft, LocationType::Bottom, LocationType::BottomRight};

/// Near the beginning of a side (0), its middle (1) or its end (2); nothing elsewhere.
std::optional<std::size_t> Third(double start, double extent, double side) {
    const std::array starts{Margin, (side - extent) / 2, side - Margin - extent};
    for (std::size_t third : {std::size_t{1}, std::size_t{0}, std::size_t{2}})
        if (std::abs(start - starts[third]) <= Reach) return third;
    return std::nullopt;
}

double StartOf(std::size_t third, double extent, double side) {
    return third == 0 ? Margin : third == 1 ? (side - extent) / 2 : side - Margin - extent;
}

double Within(double start, double extent, double side) {
    return std::max(0.0, std::min(start, side - extent));
}

Box BoxAt(double left, double top, const Box& like) {
    return {left, top, left + like.Width(), top + like.Height()};
}

} // namespace

Location* MovableLocation(Chart& chart, int part) {
    switch (static_cast<PartCode>(part)) {
    case PartCode::Title:
        return &chart.Title.Location;
    case PartCode::Footnote:
        return &chart.Footnote.Location;
    case PartCode::Legend:
        return &chart.Legend.Location;
    default:
        return nullptr;
    }
}

Box MovedBox(const Box& box, Point by, const Size& chart) {
    return BoxAt(Within(box.left + by.x, box.Width(), chart.width),
                 Within(box.top + by.y, box.Height(), chart.height), box);
}

HandPlace PlaceMoved(const Box& box, Point by, const Size& chart) {
    const Box moved = MovedBox(box, by, chart);
    const auto across = Third(moved.left, box.Width(), chart.width);
    const auto down = Third(moved.top, box.Height(), chart.height);
    if (!across || !down) return {LocationType::Custom, moved};
    return {Places[3 * *down + *across], BoxAt(StartOf(*across, box.Width(), chart.width),
                                               StartOf(*down, box.Height(), chart.height), box)};
}

void MoveTo(Location& location, const Box& before, const HandPlace& place, const Size& chart) {
    const Coordinate size{chart.width, chart.height};
    const bool byHand = location.LocationType == LocationType::Custom;
    const CoordinateRect rect =
        byHand ? RectIn(location, size)
               : CoordinateRect{{before.left, before.top}, {before.right, before.bottom}};
    const Point by{place.box.left - before.left, place.box.top - before.top};
    location.Rect =
        AsStored({{rect.Min.X + by.x, rect.Min.Y + by.y}, {rect.Max.X + by.x, rect.Max.Y + by.y}});
    location.Within = size;
    location.LocationType = place.type;
}

Location AutomaticLocation(int part) {
    Chart anew;
    const Location* location = MovableLocation(anew, part);
    return location == nullptr ? Location{} : *location;
}

} // namespace QmChart6

#include "chartcontrol/scene/HitTest.h"

#include "chartcontrol/scene/Outline.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace QmChart6 {

namespace {

/// The shortest way from the point to the chain, stopping early once it is within `enough`.
bool IsNear(std::span<const Point> chain, bool closed, Point point, double enough) {
    if (chain.empty()) return false;
    if (closed && DistanceToSegment(point, chain.back(), chain.front()) <= enough) return true;
    if (chain.size() == 1) return DistanceToSegment(point, chain[0], chain[0]) <= enough;
    for (std::size_t at = 1; at < chain.size(); ++at) {
        if (DistanceToSegment(point, chain[at - 1], chain[at]) <= enough) return true;
    }
    return false;
}

bool InsideSlice(const Slice& slice, Point point) {
    const Point center = slice.box.Center();
    const double across = slice.box.Width() / 2;
    const double down = slice.box.Height() / 2;
    if (across <= 0 || down <= 0) return false;
    const double x = (point.x - center.x) / across;
    const double y = (center.y - point.y) / down;
    if (x * x + y * y > 1) return false;
    if (std::abs(slice.spanAngle) >= 360) return true;
    const double angle = std::atan2(y, x) * 180 / std::numbers::pi;
    const double first = slice.spanAngle < 0 ? slice.startAngle + slice.spanAngle : slice.startAngle;
    const double turned = std::fmod(std::fmod(angle - first, 360) + 360, 360);
    return turned <= std::abs(slice.spanAngle);
}

bool InsideText(const TextLine& text, Point point) {
    const std::array<Point, 4> corners = CornersOf(text);
    const double radians = text.angle * std::numbers::pi / 180;
    const double x = point.x - corners[0].x;
    const double y = point.y - corners[0].y;
    const double along = x * std::cos(radians) - y * std::sin(radians);
    const double down = x * std::sin(radians) + y * std::cos(radians);
    return along >= 0 && along <= text.width && down >= 0 && down <= text.ascent + text.descent;
}

/// The exact shape: what is filled, and what the stroke covers. A stroke alone is a line, so slack widens it;
/// beside a fill it is met as wide as it is drawn.
struct ExactlyCovers {
    const Scene& scene;
    const Shape& shape;
    Point point;
    double slack;

    [[nodiscard]] bool Filled() const { return shape.fill.style != BrushStyle::None; }
    [[nodiscard]] bool Stroked() const { return shape.stroke.style != PenStyle::None; }
    [[nodiscard]] double Reach() const { return shape.stroke.width / 2 + (Filled() ? 0 : slack); }
    [[nodiscard]] bool OnRim(std::span<const Point> rim) const {
        return Stroked() && IsNear(rim, true, point, Reach());
    }

    bool operator()(const Polyline& line) const {
        return Stroked() && IsNear(scene.PointsOf(line.points), false, point, shape.stroke.width / 2 + slack);
    }
    bool operator()(const Polygon& polygon) const {
        const std::span<const Point> rim = scene.PointsOf(polygon.points);
        return (Filled() && InsidePolygon(rim, point)) || OnRim(rim);
    }
    bool operator()(const Rectangle& rectangle) const {
        const bool isHitArea = !Filled() && !Stroked();
        return ((Filled() || isHitArea) && rectangle.box.Contains(point)) || OnRim(BoxOutline(rectangle.box));
    }
    bool operator()(const Slice& slice) const {
        return (Filled() && InsideSlice(slice, point)) || OnRim(SliceOutline(slice));
    }
    bool operator()(const TextLine& text) const { return InsideText(text, point); }
    /// A hollow marker is met anywhere inside: it is too small to aim at its rim.
    bool operator()(const MarkerRun& run) const {
        if (!Filled() && !Stroked()) return false;
        const double reach = slack + (Stroked() ? shape.stroke.width / 2 : 0);
        const std::vector<Point> rim = MarkerOutline(run.style, run.size);
        return std::ranges::any_of(scene.PointsOf(run.points), [&](Point center) {
            const Point from{point.x - center.x, point.y - center.y};
            if (std::max(std::abs(from.x), std::abs(from.y)) > run.size / 2 + reach) return false;
            if (run.style == MarkerStyle::Circle) return std::hypot(from.x, from.y) <= run.size / 2 + reach;
            return InsidePolygon(rim, from) || IsNear(rim, true, from, reach);
        });
    }
};

bool Shows(const Part& shown, const Part& wanted) {
    return shown.code == wanted.code && (wanted.index1 == AnyIndex || shown.index1 == wanted.index1) &&
           (wanted.index2 == AnyIndex || shown.index2 == wanted.index2);
}

} // namespace

bool Covers(const Scene& scene, const Shape& shape, Point point, double slack) {
    if (!shape.bounds.Grown(slack).Contains(point)) return false;
    if (shape.clip != NoClip && !scene.clips[static_cast<std::size_t>(shape.clip)].Contains(point))
        return false;
    return std::visit(ExactlyCovers{scene, shape, point, slack}, shape.geometry);
}

std::optional<std::size_t> Hit(const Scene& scene, Point point, double slack) {
    for (std::size_t index = scene.shapes.size(); index-- > 0;) {
        if (Covers(scene, scene.shapes[index], point, slack)) return index;
    }
    return std::nullopt;
}

std::vector<std::size_t> Find(const Scene& scene, Part part) {
    std::vector<std::size_t> found;
    for (std::size_t index = 0; index < scene.shapes.size(); ++index) {
        if (Shows(scene.shapes[index].part, part)) found.push_back(index);
    }
    return found;
}

std::optional<Box> BoundsOf(const Scene& scene, Part part) {
    const std::vector<std::size_t> shapes = Find(scene, part);
    if (shapes.empty()) return std::nullopt;
    Box bounds = Box::Nothing();
    for (const std::size_t index : shapes) bounds.Include(scene.shapes[index].bounds);
    return bounds;
}

} // namespace QmChart6

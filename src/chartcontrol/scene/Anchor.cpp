#include "chartcontrol/scene/Anchor.h"

#include <cmath>
#include <numbers>

namespace QmChart6 {

namespace {

/// How far out of its centre a slice's middle is.
constexpr double SliceShare = 0.62;

struct Anchor {
    const Scene& scene;

    Point operator()(const Polyline& line) const { return Middle(line.points); }
    Point operator()(const Polygon& polygon) const {
        const std::span<const Point> corners = scene.PointsOf(polygon.points);
        Point sum;
        for (const Point& corner : corners) sum = {sum.x + corner.x, sum.y + corner.y};
        const auto count = static_cast<double>(corners.size());
        return corners.empty() ? sum : Point{sum.x / count, sum.y / count};
    }
    Point operator()(const Rectangle& rectangle) const { return rectangle.box.Center(); }
    Point operator()(const Slice& slice) const {
        const Point center = slice.box.Center();
        if (std::abs(slice.spanAngle) >= 360) return center;
        const double middle = (slice.startAngle + slice.spanAngle / 2) * std::numbers::pi / 180;
        return {center.x + SliceShare * slice.box.Width() / 2 * std::cos(middle),
                center.y - SliceShare * slice.box.Height() / 2 * std::sin(middle)};
    }
    Point operator()(const TextLine& text) const { return text.origin; }
    Point operator()(const MarkerRun& run) const { return Middle(run.points); }

    [[nodiscard]] Point Middle(PointRun run) const {
        return run.count == 0 ? Point{} : scene.PointsOf(run)[run.count / 2];
    }
};

} // namespace

Point AnchorOf(const Scene& scene, const Shape& shape) {
    return std::visit(Anchor{scene}, shape.geometry);
}

} // namespace QmChart6

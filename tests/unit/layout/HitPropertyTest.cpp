#include "base/Units.h"
#include "unit/layout/LayoutSupport.h"

#include "chartcontrol/scene/Outline.h"

#include <gtest/gtest.h>

#include <algorithm>

// What is seen is what is hit, in every sample chart.

namespace QmChart6 {
namespace {

/// The middle of the widest stretch inside a polygon at half its height.
std::optional<Point> InsideOf(std::span<const Point> rim) {
    const auto [top, bottom] =
        std::minmax_element(rim.begin(), rim.end(), [](Point a, Point b) { return a.y < b.y; });
    // Not the very middle: a corner may lie there.
    const double y = top->y + 0.4937 * (bottom->y - top->y);
    std::vector<double> crossings;
    for (std::size_t i = 0; i < rim.size(); ++i) {
        const Point& from = rim[i];
        const Point& to = rim[(i + 1) % rim.size()];
        if ((from.y <= y) != (to.y <= y))
            crossings.push_back(from.x + (y - from.y) / (to.y - from.y) * (to.x - from.x));
    }
    std::ranges::sort(crossings);
    double widest = 0;
    std::optional<Point> inside;
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
        if (crossings[i + 1] - crossings[i] > widest) {
            widest = crossings[i + 1] - crossings[i];
            inside = Point{(crossings[i] + crossings[i + 1]) / 2, y};
        }
    return inside;
}

/// A point that the shape draws at; nothing for polygons without an inside.
struct InsidePoint {
    const Scene& scene;
    const Shape& shape;

    [[nodiscard]] bool Filled() const { return shape.fill.style != BrushStyle::None; }
    std::optional<Point> operator()(const Polyline& line) const {
        const std::span<const Point> points = scene.PointsOf(line.points);
        const std::size_t at = points.size() / 2;
        if (at == 0) return points[0];
        return Point{(points[at - 1].x + points[at].x) / 2, (points[at - 1].y + points[at].y) / 2};
    }
    std::optional<Point> operator()(const Polygon& polygon) const {
        const std::span<const Point> rim = scene.PointsOf(polygon.points);
        return Filled() ? InsideOf(rim) : std::optional(rim[0]);
    }
    std::optional<Point> operator()(const Rectangle& rectangle) const {
        const Box& box = rectangle.box;
        if (Filled() || shape.stroke.style == PenStyle::None) return box.Center();
        return Point{box.left, box.top};
    }
    std::optional<Point> operator()(const Slice& slice) const {
        const std::vector<Point> rim = SliceOutline(slice);
        return Filled() ? InsideOf(rim) : std::optional(rim[rim.size() / 2]);
    }
    std::optional<Point> operator()(const TextLine& text) const {
        const std::array<Point, 4> corners = CornersOf(text);
        return Point{(corners[0].x + corners[2].x) / 2, (corners[0].y + corners[2].y) / 2};
    }
    std::optional<Point> operator()(const MarkerRun& run) const { return scene.PointsOf(run.points)[0]; }
};

class EveryShape : public testing::TestWithParam<Samples::Sample> {};

TEST_P(EveryShape, IsHitInsideOrCoveredByOneAbove) {
    const Samples::Sample& sample = GetParam();
    const Scene scene =
        LaidOut(sample.make(), {sample.width * PointsPerPixel, sample.height * PointsPerPixel});
    std::size_t checked = 0;
    for (std::size_t index = 0; index < scene.shapes.size(); ++index) {
        const Shape& shape = scene.shapes[index];
        const std::optional<Point> inside = std::visit(InsidePoint{scene, shape}, shape.geometry);
        if (!inside) continue;
        const bool isClippedAway =
            shape.clip != NoClip && !scene.clips[static_cast<std::size_t>(shape.clip)].Contains(*inside);
        if (isClippedAway) continue;
        ++checked;
        EXPECT_TRUE(Covers(scene, shape, *inside)) << "shape " << index;
        const std::optional<std::size_t> hit = Hit(scene, *inside);
        ASSERT_TRUE(hit.has_value()) << "shape " << index;
        EXPECT_GE(*hit, index);
    }
    EXPECT_GE(checked * 10, scene.shapes.size() * 9) << "too few shapes had a point to try";
}

INSTANTIATE_TEST_SUITE_P(Samples, EveryShape, testing::ValuesIn(Samples::All()), Samples::TestName());

} // namespace
} // namespace QmChart6

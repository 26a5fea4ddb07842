#include "chartcontrol/scene/SceneBuilder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace QmChart6 {
namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();
const double NotANumber = std::nan("");
constexpr Stroke Pen{PenStyle::Solid, 1, {}};

TEST(SceneBuilder, LeavesOutWhatStandsAtNoFinitePlace) {
    Scene scene;
    SceneBuilder builder(scene);
    builder.AddLine({}, {1, 2}, {NotANumber, 3}, Pen);
    builder.AddLine({}, {1, 2}, {4, Infinite}, Pen);
    builder.AddRectangle({}, {0, 0, Infinite, 1}, {});
    builder.AddRectangle({}, {0, NotANumber, 1, 1}, {});
    builder.AddSlice({}, {{-Infinite, 0, 1, 1}, 0, 90}, {});
    builder.AddText({}, {QStringLiteral("a"), {}, {NotANumber, 0}, TextAnchor::Start, 0, 5, 5, 5});
    EXPECT_TRUE(scene.shapes.empty());
    EXPECT_TRUE(scene.points.empty());
    EXPECT_EQ(scene.warnings.size(), 1);
}

TEST(SceneBuilder, KeepsWhatComesBeforeAndAfter) {
    Scene scene;
    SceneBuilder builder(scene);
    builder.AddLine({}, {1, 2}, {3, 4}, Pen);
    builder.AddLine({}, {1, 2}, {NotANumber, 3}, Pen);
    builder.AddLine({}, {5, 6}, {7, 8}, Pen);
    ASSERT_EQ(scene.shapes.size(), 2U);
    ASSERT_EQ(scene.points.size(), 4U);
    const auto points = scene.PointsOf(std::get<Polyline>(scene.shapes[1].geometry).points);
    EXPECT_EQ(points[0], (Point{5, 6}));
    EXPECT_EQ(points[1], (Point{7, 8}));
}

} // namespace
} // namespace QmChart6

#include "chartcontrol/scene/HitTest.h"
#include "chartcontrol/scene/Outline.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace QmChart6 {

namespace {

const Stroke ThinStroke{PenStyle::Solid, 1, {}};
const SceneFill Filled = SolidFill({200, 0, 0});

class HitTest : public testing::Test {
protected:
    Scene scene;
    SceneBuilder builder{scene};

    [[nodiscard]] bool CoversLast(Point point, double slack = 2) const {
        return Covers(scene, scene.shapes.back(), point, slack);
    }
};

} // namespace

TEST_F(HitTest, PolylineIsMetWithinItsWidthAndSlack) {
    builder.AddLine({PartCode::Series, 1}, {10, 10}, {50, 50}, ThinStroke, false);
    EXPECT_TRUE(CoversLast({30, 30}));
    EXPECT_TRUE(CoversLast({31, 29}));
    EXPECT_FALSE(CoversLast({35, 25}));
    EXPECT_FALSE(CoversLast({31, 29}, 0));
    EXPECT_FALSE(CoversLast({55, 55}));
}

TEST_F(HitTest, PolylineWithoutStrokeIsNeverMet) {
    builder.AddLine({PartCode::Series, 1}, {10, 10}, {50, 50}, {}, false);
    EXPECT_FALSE(CoversLast({30, 30}));
}

TEST_F(HitTest, PolygonIsMetInsideByTheEvenOddRule) {
    for (const Point point : {Point{0, 0}, Point{90, 0}, Point{90, 90}, Point{0, 90}, Point{0, 0},
                              Point{30, 30}, Point{60, 30}, Point{60, 60}, Point{30, 60}, Point{30, 30}}) {
        builder.AddPoint(point);
    }
    builder.AddPolygon({PartCode::DataPoint, 1, 1}, Filled);
    EXPECT_TRUE(CoversLast({15, 45}));
    EXPECT_FALSE(CoversLast({45, 45}));
    EXPECT_FALSE(CoversLast({91, 45}));
}

TEST_F(HitTest, OpenShapesAreMetNearTheirStrokeOnly) {
    builder.AddRectangle({PartCode::Plot}, {10, 10, 90, 90}, {}, ThinStroke);
    EXPECT_TRUE(CoversLast({11, 50}));
    EXPECT_TRUE(CoversLast({8, 50}));
    EXPECT_FALSE(CoversLast({50, 50}));
    for (const Point point : {Point{0, 0}, Point{90, 0}, Point{0, 90}}) builder.AddPoint(point);
    builder.AddPolygon({PartCode::Plot}, {}, ThinStroke);
    EXPECT_TRUE(CoversLast({45, 45}));
    EXPECT_FALSE(CoversLast({20, 20}));
    builder.AddSlice({PartCode::Plot}, {{0, 0, 100, 100}, 0, 360}, {}, ThinStroke);
    EXPECT_TRUE(CoversLast({50, 1}));
    EXPECT_FALSE(CoversLast({50, 50}));
}

TEST_F(HitTest, FilledRectangleHasNoSlackButItsStroke) {
    builder.AddRectangle({PartCode::Plot}, {10, 10, 90, 90}, Filled);
    EXPECT_TRUE(CoversLast({50, 50}));
    EXPECT_FALSE(CoversLast({9, 50}));
    builder.AddRectangle({PartCode::Plot}, {10, 10, 90, 90}, Filled, {PenStyle::Solid, 4, {}});
    EXPECT_TRUE(CoversLast({9, 50}));
    EXPECT_FALSE(CoversLast({7, 50}));
}

TEST_F(HitTest, SliceIsMetBetweenItsAnglesWithinTheEllipse) {
    const Box box{0, 0, 200, 100};
    builder.AddSlice({PartCode::DataPoint, 1, 1}, {box, 0, 90}, Filled);
    EXPECT_TRUE(CoversLast({150, 30}));
    EXPECT_FALSE(CoversLast({50, 30}));
    EXPECT_FALSE(CoversLast({150, 70}));
    EXPECT_FALSE(CoversLast({195, 5}));
    builder.AddSlice({PartCode::DataPoint, 1, 1}, {box, 0, -90}, Filled);
    EXPECT_TRUE(CoversLast({150, 70}));
    EXPECT_FALSE(CoversLast({150, 30}));
    builder.AddSlice({PartCode::DataPoint, 1, 1}, {box, 300, 120}, Filled);
    EXPECT_TRUE(CoversLast({180, 50}));
    EXPECT_FALSE(CoversLast({20, 50}));
    builder.AddSlice({PartCode::DataPoint, 1, 1}, {box, 77, 360}, Filled);
    EXPECT_TRUE(CoversLast({20, 50}));
    EXPECT_FALSE(CoversLast({2, 2}));
}

TEST_F(HitTest, TurnedTextIsMetInItsTurnedRectangle) {
    TextLine text;
    text.text = QStringLiteral("words");
    text.origin = {100, 100};
    text.angle = 45;
    text.width = 60;
    text.ascent = 8;
    text.descent = 2;
    builder.AddText({PartCode::AxisLabel, 0, 1}, text);
    EXPECT_TRUE(CoversLast({120, 78}));
    EXPECT_FALSE(CoversLast({130, 90})) << "within the bounds, below the line";
    EXPECT_FALSE(CoversLast({105, 65}));
    for (const Point corner : CornersOf(text)) {
        const Point middle{120, 77};
        EXPECT_TRUE(
            CoversLast({corner.x + (middle.x - corner.x) * 0.05, corner.y + (middle.y - corner.y) * 0.05}));
    }
}

TEST_F(HitTest, EveryMarkerIsMetAtItsCentreAndNotBesideIt) {
    for (int style = 1; style <= 8; ++style) {
        builder.AddPoint({50, 50});
        builder.AddPoint({150, 50});
        builder.AddMarkers({PartCode::Series, 1}, static_cast<MarkerStyle>(style), 10, Filled);
        EXPECT_TRUE(CoversLast({50, 50}, 0)) << style;
        EXPECT_TRUE(CoversLast({150, 50}, 0)) << style;
        EXPECT_FALSE(CoversLast({100, 50})) << style;
        EXPECT_FALSE(CoversLast({50, 56}, 0)) << style;
    }
}

TEST_F(HitTest, MarkersAreExactInTheirCorners) {
    const auto coversCorner = [&](MarkerStyle style) {
        builder.AddPoint({0, 0});
        builder.AddMarkers({PartCode::Series, 1}, style, 10, Filled);
        return CoversLast({3.7, -3.7}, 0);
    };
    EXPECT_FALSE(coversCorner(MarkerStyle::Circle));
    EXPECT_TRUE(coversCorner(MarkerStyle::Square));
    EXPECT_FALSE(coversCorner(MarkerStyle::Diamond));
    EXPECT_FALSE(coversCorner(MarkerStyle::Plus));
    EXPECT_TRUE(coversCorner(MarkerStyle::Cross));
}

TEST_F(HitTest, ClippedAwayIsNotMet) {
    builder.SetClip(Box{0, 0, 50, 50});
    builder.AddRectangle({PartCode::Plot}, {0, 0, 100, 100}, Filled);
    EXPECT_TRUE(CoversLast({40, 40}));
    EXPECT_FALSE(CoversLast({60, 40}));
}

TEST_F(HitTest, TheTopmostShapeIsHit) {
    builder.AddRectangle({PartCode::Chart}, {0, 0, 100, 100}, Filled);
    builder.AddRectangle({PartCode::Legend}, {50, 0, 100, 100}, Filled);
    builder.AddRectangle({PartCode::Plot}, {0, 0, 100, 100}, {}, ThinStroke);
    EXPECT_EQ(Hit(scene, {20, 50}), 0U);
    EXPECT_EQ(Hit(scene, {70, 50}), 1U);
    EXPECT_EQ(Hit(scene, {0, 50}), 2U);
    EXPECT_EQ(Hit(scene, {120, 50}), std::nullopt);
}

TEST_F(HitTest, ARectangleWithoutFillAndStrokeIsAHitArea) {
    builder.AddRectangle({PartCode::Plot}, {10, 10, 90, 90}, {});
    EXPECT_TRUE(CoversLast({50, 50}));
    EXPECT_TRUE(CoversLast({10, 90}));
    EXPECT_FALSE(CoversLast({9, 50}));
}

TEST_F(HitTest, FindTakesAnyIndexWhereItIsAskedTo) {
    builder.AddRectangle({PartCode::DataPoint, 1, 1}, {0, 0, 1, 1}, Filled);
    builder.AddRectangle({PartCode::DataPoint, 1, 2}, {0, 0, 1, 1}, Filled);
    builder.AddRectangle({PartCode::DataPoint, 2, 1}, {0, 0, 1, 1}, Filled);
    builder.AddRectangle({PartCode::Series, 1, 0}, {0, 0, 1, 1}, Filled);
    using Indexes = std::vector<std::size_t>;
    EXPECT_EQ(Find(scene, {PartCode::DataPoint, AnyIndex, AnyIndex}), (Indexes{0, 1, 2}));
    EXPECT_EQ(Find(scene, {PartCode::DataPoint, 1, AnyIndex}), (Indexes{0, 1}));
    EXPECT_EQ(Find(scene, {PartCode::DataPoint, AnyIndex, 1}), (Indexes{0, 2}));
    EXPECT_EQ(Find(scene, {PartCode::DataPoint, 1, 2}), (Indexes{1}));
    EXPECT_EQ(Find(scene, {PartCode::Title, AnyIndex, AnyIndex}), Indexes{});
}

TEST_F(HitTest, FindTellsTheFirstAxisFromTheOthers) {
    builder.AddRectangle({PartCode::Axis, 0, 1}, {0, 0, 1, 1}, Filled);
    builder.AddRectangle({PartCode::Axis, 1, 1}, {0, 0, 1, 1}, Filled);
    EXPECT_EQ(Find(scene, {PartCode::Axis, 0, 1}), (std::vector<std::size_t>{0}));
}

TEST(Outline, SliceStaysWithinAHundredthOfAPointOfTheCurve) {
    const double radius = 300;
    const std::vector<Point> rim = SliceOutline({{-radius, -radius, radius, radius}, 10, 80});
    EXPECT_EQ(rim.front(), (Point{0, 0}));
    for (std::size_t at = 2; at < rim.size(); ++at) {
        const Point middle{(rim[at].x + rim[at - 1].x) / 2, (rim[at].y + rim[at - 1].y) / 2};
        EXPECT_NEAR(std::hypot(middle.x, middle.y), radius, 0.01);
    }
}

TEST(Outline, MarkersFitTheirWidth) {
    for (int style = 1; style <= 8; ++style) {
        for (const Point point : MarkerOutline(static_cast<MarkerStyle>(style), 10)) {
            EXPECT_LE(std::max(std::abs(point.x), std::abs(point.y)), 5 + 1e-9) << style;
        }
    }
}

} // namespace QmChart6

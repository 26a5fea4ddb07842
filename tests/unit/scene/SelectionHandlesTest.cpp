#include "chartcontrol/scene/SelectionHandles.h"

#include "chartcontrol/scene/SceneBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace QmChart6 {

namespace {

const Stroke Line{PenStyle::Solid, 1, {200, 0, 0}};
const SceneFill Filled = SolidFill({200, 0, 0});

class SelectionHandlesTest : public testing::Test {
protected:
    SelectionHandlesTest() { scene.size = {400, 300}; }

    void AddCurve(int series, int points, const Stroke& stroke) {
        for (int i = 0; i < points; ++i) builder.AddPoint({10.0 + i, 100.0 + i % 7});
        builder.AddPolyline({PartCode::Series, series}, stroke);
    }

    Scene scene;
    SceneBuilder builder{scene};
};

} // namespace

TEST_F(SelectionHandlesTest, APartHasThemAtTheCornersOfAllItsShapes) {
    builder.AddRectangle({PartCode::Legend}, {100, 100, 150, 120}, Filled);
    builder.AddRectangle({PartCode::Legend, 2}, {120, 110, 180, 140}, Filled);
    EXPECT_EQ(HandlePlaces(scene, {PartCode::Legend, AnyIndex, AnyIndex}),
              (std::vector<Point>{{100, 100}, {180, 100}, {180, 140}, {100, 140}}));
}

TEST_F(SelectionHandlesTest, AFlatPartHasThemAtItsEnds) {
    builder.AddLine({PartCode::Axis, 0, 1}, {50, 200}, {350, 200}, Line);
    const std::vector<Point> places = HandlePlaces(scene, {PartCode::Axis, 0, AnyIndex});
    ASSERT_EQ(places.size(), 2U);
    EXPECT_EQ(places[0].y, 200);
    EXPECT_LT(places[0].x, places[1].x);
}

TEST_F(SelectionHandlesTest, APartThatIsNotShownHasNone) {
    EXPECT_TRUE(HandlePlaces(scene, {PartCode::Title}).empty());
    EXPECT_TRUE(SelectionHandles(scene, {PartCode::Series, 1, AnyIndex}).shapes.empty());
}

TEST_F(SelectionHandlesTest, BarsHaveOneEach) {
    for (int category = 1; category <= 3; ++category)
        builder.AddRectangle({PartCode::Series, 1, category},
                             {100.0 * category, 50, 100.0 * category + 20, 90}, Filled);
    builder.AddRectangle({PartCode::Series, 2, 1}, {0, 0, 10, 10}, Filled);
    EXPECT_EQ(HandlePlaces(scene, {PartCode::Series, 1, AnyIndex}),
              (std::vector<Point>{{110, 70}, {210, 70}, {310, 70}}));
}

TEST_F(SelectionHandlesTest, OfSeveralFacesTheLargestCarriesTheHandle) {
    builder.AddRectangle({PartCode::Series, 1, 1}, {0, 0, 10, 10}, Filled);
    builder.AddRectangle({PartCode::Series, 1, 1}, {10, 0, 70, 40}, Filled);
    EXPECT_EQ(HandlePlaces(scene, {PartCode::Series, 1, AnyIndex}), (std::vector<Point>{{40, 20}}));
}

TEST_F(SelectionHandlesTest, ALongLineHasThemEvenlyAndNotMany) {
    AddCurve(1, 300, Line);
    const std::vector<Point> places = HandlePlaces(scene, {PartCode::Series, 1, AnyIndex});
    EXPECT_EQ(places.size(), MostHandles);
    EXPECT_EQ(places.front().x, 10);
    EXPECT_EQ(places.back().x, 309);
}

TEST_F(SelectionHandlesTest, StatisticsLinesHaveNone) {
    AddCurve(1, 5, Line);
    builder.AddLine({PartCode::Series, 1}, {0, 20}, {400, 20}, {PenStyle::Dashed, 1, {}});
    const std::vector<Point> places = HandlePlaces(scene, {PartCode::Series, 1, AnyIndex});
    EXPECT_EQ(places.size(), 5U);
    EXPECT_TRUE(std::ranges::none_of(places, [](Point place) { return place.y == 20; }));
}

TEST_F(SelectionHandlesTest, AMarkerOfItsOwnLookIsStillOneOfItsLine) {
    AddCurve(1, 5, Line);
    builder.AddPoint({12, 102});
    builder.AddMarkers({PartCode::Series, 1, 3}, MarkerStyle::Star, 8, Filled);
    EXPECT_EQ(HandlePlaces(scene, {PartCode::Series, 1, AnyIndex}).size(), 5U);
}

TEST_F(SelectionHandlesTest, AllStandWithinThePictureAndTheChartsToo) {
    const Scene handles = SelectionHandles(scene, {PartCode::Chart});
    ASSERT_EQ(handles.shapes.size(), 4U);
    EXPECT_EQ(handles.size, scene.size);
    for (const Shape& shape : handles.shapes) {
        EXPECT_GE(shape.bounds.left, 0);
        EXPECT_GE(shape.bounds.top, 0);
        EXPECT_LE(shape.bounds.right, scene.size.width);
        EXPECT_LE(shape.bounds.bottom, scene.size.height);
        EXPECT_EQ(shape.fill.colour, (Colour{255, 255, 255}));
    }
}

TEST_F(SelectionHandlesTest, TheCurrentPointsHandleIsDarkAndOnTop) {
    AddCurve(1, 3, Line);
    const Scene handles = SelectionHandles(scene, {PartCode::Series, 1, AnyIndex}, Point{60, 70});
    ASSERT_EQ(handles.shapes.size(), 4U);
    const Shape& current = handles.shapes.back();
    EXPECT_EQ(std::get<Rectangle>(current.geometry).box.Center(), (Point{60, 70}));
    EXPECT_LT(current.fill.colour.Red, 100);
}

} // namespace QmChart6

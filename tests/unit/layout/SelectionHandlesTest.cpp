#include "chartcontrol/layout/SelectionHandles.h"

#include "unit/layout/LayoutSupport.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace QmChart6 {

namespace {

/// One series of so many points, as a chart of a type.
Chart Curve(ChartType type, int points) {
    Chart chart = Samples::ChartOf(points, 1, [](int row, int) { return 10.0 + row % 7; });
    chart.SetChartType(type);
    return chart;
}

const Part Series1{PartCode::Series, 1, AnyIndex};

} // namespace

TEST(SelectionHandles, APartHasThemAtTheCornersOfAllItsShapes) {
    LaidOutChart laidOut;
    laidOut.scene.size = {400, 300};
    SceneBuilder builder(laidOut.scene);
    builder.AddRectangle({PartCode::Legend}, {100, 100, 150, 120}, SolidFill({200, 0, 0}));
    builder.AddRectangle({PartCode::Legend, 2}, {120, 110, 180, 140}, SolidFill({200, 0, 0}));
    EXPECT_EQ(HandlePlaces(laidOut, {PartCode::Legend, AnyIndex, AnyIndex}),
              (std::vector<Point>{{100, 100}, {180, 100}, {180, 140}, {100, 140}}));
}

TEST(SelectionHandles, AFlatPartHasThemAtItsEnds) {
    LaidOutChart laidOut;
    laidOut.scene.size = {400, 300};
    SceneBuilder(laidOut.scene)
        .AddLine({PartCode::Axis, 0, 1}, {50, 200}, {350, 200}, {PenStyle::Solid, 1, {}});
    const std::vector<Point> places = HandlePlaces(laidOut, {PartCode::Axis, 0, AnyIndex});
    ASSERT_EQ(places.size(), 2U);
    EXPECT_EQ(places[0].y, 200);
    EXPECT_LT(places[0].x, places[1].x);
}

TEST(SelectionHandles, APartThatIsNotShownHasNone) {
    const LaidOutChart laidOut = LaidOutWhole(Curve(ChartType::Bar2D, 3));
    EXPECT_TRUE(HandlePlaces(laidOut, {PartCode::Title}).empty());
    EXPECT_TRUE(SelectionHandles(laidOut, {PartCode::Series, 2, AnyIndex}).shapes.empty());
}

TEST(SelectionHandles, BarsHaveOneEachInTheirMiddle) {
    const LaidOutChart laidOut = LaidOutWhole(Curve(ChartType::Bar2D, 3));
    std::vector<Point> middles;
    for (const Shape& bar : ShapesOf<Rectangle>(laidOut.scene, PartCode::Series))
        middles.push_back(std::get<Rectangle>(bar.geometry).box.Center());
    ASSERT_EQ(middles.size(), 3U);
    EXPECT_EQ(HandlePlaces(laidOut, Series1), middles);
}

TEST(SelectionHandles, OfTheFacesOfABarInSpaceTheLargestCarriesTheHandle) {
    const LaidOutChart laidOut = LaidOutWhole(Curve(ChartType::Bar3D, 1));
    double largest = 0;
    Box face;
    for (const Shape& shape : ShapesOf<Polygon>(laidOut.scene, PartCode::Series)) {
        const double room = shape.bounds.Width() * shape.bounds.Height();
        if (room > largest) largest = room, face = shape.bounds;
    }
    const std::vector<Point> places = HandlePlaces(laidOut, Series1);
    ASSERT_EQ(places.size(), 1U);
    EXPECT_NEAR(places[0].x, face.Center().x, 0.01);
    EXPECT_NEAR(places[0].y, face.Center().y, 0.01);
}

TEST(SelectionHandles, ALongLineHasThemEvenlyAndNotMany) {
    const LaidOutChart laidOut = LaidOutWhole(Curve(ChartType::Line2D, 300));
    const std::vector<Point> places = HandlePlaces(laidOut, Series1);
    EXPECT_EQ(places.size(), MostHandles);
    EXPECT_EQ(places.front(), laidOut.places.At({1, 1}));
    EXPECT_EQ(places.back(), laidOut.places.At({1, 300}));
}

TEST(SelectionHandles, StatisticsLinesHaveNone) {
    Chart chart = Curve(ChartType::Line2D, 5);
    const std::vector<Point> before = HandlePlaces(LaidOutWhole(chart), Series1);
    chart.Plot.SeriesCollection(1).StatLine.Flag = StatMinimum | StatMean | StatRegression;
    EXPECT_EQ(before.size(), 5U);
    EXPECT_EQ(HandlePlaces(LaidOutWhole(chart), Series1), before);
}

TEST(SelectionHandles, AMarkerOfItsOwnLookIsStillOneOfItsLine) {
    Chart chart = Curve(ChartType::Line2D, 5);
    chart.Plot.SeriesCollection(1).DataPoints.Item(3).Marker.Style = MarkerStyle::Star;
    EXPECT_EQ(HandlePlaces(LaidOutWhole(chart), Series1).size(), 5U);
}

TEST(SelectionHandles, TwoPointsShownByMarkersCarryThem) {
    Chart chart = Curve(ChartType::Line2D, 2);
    chart.Plot.SeriesCollection(1).SeriesMarker.Show = true;
    const LaidOutChart laidOut = LaidOutWhole(chart);
    const std::vector<Point> expected{*laidOut.places.At({1, 1}), *laidOut.places.At({1, 2})};
    EXPECT_EQ(HandlePlaces(laidOut, Series1), expected);
    chart.Plot.SeriesCollection(1).ShowLine = false;
    EXPECT_EQ(HandlePlaces(LaidOutWhole(chart), Series1), expected);
}

TEST(SelectionHandles, AllStandWithinThePictureAndTheChartsToo) {
    const LaidOutChart laidOut = LaidOutWhole(Curve(ChartType::Bar2D, 3));
    const Scene handles = SelectionHandles(laidOut, {PartCode::Chart});
    ASSERT_EQ(handles.shapes.size(), 4U);
    EXPECT_EQ(handles.size, laidOut.scene.size);
    for (const Shape& shape : handles.shapes) {
        EXPECT_GE(shape.bounds.left, 0);
        EXPECT_GE(shape.bounds.top, 0);
        EXPECT_LE(shape.bounds.right, handles.size.width);
        EXPECT_LE(shape.bounds.bottom, handles.size.height);
        EXPECT_EQ(shape.fill.colour, (Colour{255, 255, 255}));
    }
}

TEST(SelectionHandles, TheCurrentPointsHandleIsDarkAndOnTop) {
    const LaidOutChart laidOut = LaidOutWhole(Curve(ChartType::Line2D, 3));
    const Scene handles = SelectionHandles(laidOut, Series1, Point{60, 70});
    ASSERT_EQ(handles.shapes.size(), 4U);
    const Shape& current = handles.shapes.back();
    EXPECT_EQ(std::get<Rectangle>(current.geometry).box.Center(), (Point{60, 70}));
    EXPECT_LT(current.fill.colour.Red, 100);
}

} // namespace QmChart6

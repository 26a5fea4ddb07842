#include "unit/layout/LayoutSupport.h"

#include <gtest/gtest.h>

#include <cmath>

namespace QmChart6 {
namespace {

using Samples::ChartOf;
using Samples::Missing;

Chart Typed(ChartType type, int rows, int columns, const std::function<double(int, int)>& value) {
    Chart chart = ChartOf(rows, columns, value);
    chart.SetChartType(type);
    return chart;
}

double Ramp(int row, int column) {
    return 10.0 * row + column;
}

TEST(Bars, OneForEachValueAndNoneForAMissingOne) {
    const Scene scene = LaidOut(Typed(ChartType::Bar2D, 4, 2, [](int row, int column) {
        return row == 2 && column == 1 ? Missing() : Ramp(row, column);
    }));
    EXPECT_EQ(ShapesOf<Rectangle>(scene, PartCode::Series).size(), 7U);
}

TEST(Bars, NegativeOnesHangFromZero) {
    const Scene scene =
        LaidOut(Typed(ChartType::Bar2D, 2, 1, [](int row, int) { return row == 1 ? 5.0 : -5.0; }));
    const auto bars = ShapesOf<Rectangle>(scene, PartCode::Series);
    const Box up = std::get<Rectangle>(bars[0].geometry).box;
    const Box down = std::get<Rectangle>(bars[1].geometry).box;
    EXPECT_DOUBLE_EQ(up.bottom, down.top);
    EXPECT_NEAR(up.Height(), down.Height(), 1e-9);
}

TEST(Bars, StandOnZeroAlsoWhenAllValuesAreLarge) {
    const Scene scene = LaidOut(Typed(ChartType::Bar2D, 2, 1, [](int row, int) { return 1000.0 + row; }));
    const Box bar = std::get<Rectangle>(ShapesOf<Rectangle>(scene, PartCode::Series)[0].geometry).box;
    EXPECT_DOUBLE_EQ(bar.bottom, BoxOfPlot(scene).bottom);
    EXPECT_EQ(TextsOf(scene, PartCode::AxisLabel)[0].text, QStringLiteral("0"));
}

TEST(Bars, ASingleOneIsNoWall) {
    const Scene scene = LaidOut(ChartOf(1, 1, Ramp));
    const Box bar = std::get<Rectangle>(ShapesOf<Rectangle>(scene, PartCode::Series)[0].geometry).box;
    EXPECT_LE(bar.Width(), BoxOfPlot(scene).Width() / 6 + 1e-9);
}

TEST(Bars, MoreThanThePictureHasPixelsCostNoMoreThanThose) {
    const Scene scene = LaidOut(Typed(ChartType::Bar2D, 32767, 2, Ramp));
    EXPECT_LE(ShapesOf<Rectangle>(scene, PartCode::Series).size(), 2U * 641U);
}

TEST(Bars, APointMayHaveALookOfItsOwn) {
    Chart chart = ChartOf(3, 1, Ramp);
    chart.Plot.SeriesCollection(1).DataPoints.Item(2).Brush.FillColor.Set(1, 2, 3);
    const auto bars = ShapesOf<Rectangle>(LaidOut(chart), PartCode::Series);
    EXPECT_EQ(bars[1].fill.colour, (Colour{1, 2, 3}));
    EXPECT_NE(bars[0].fill.colour, (Colour{1, 2, 3}));
}

TEST(Lines, BreakAtMissingValues) {
    const Scene scene = LaidOut(
        Typed(ChartType::Line2D, 7, 1, [](int row, int) { return row == 4 ? Missing() : 1.0 * row; }));
    EXPECT_EQ(ShapesOf<Polyline>(scene, PartCode::Series).size(), 2U);
}

TEST(Lines, AValueAloneBetweenMissingOnesIsADot) {
    const Scene scene =
        LaidOut(Typed(ChartType::Line2D, 5, 1, [](int row, int) { return row == 3 ? 1.0 : Missing(); }));
    EXPECT_TRUE(ShapesOf<Polyline>(scene, PartCode::Series).empty());
    EXPECT_EQ(ShapesOf<MarkerRun>(scene, PartCode::Series).size(), 1U);
}

TEST(Lines, AreNotForcedToZero) {
    const Scene scene = LaidOut(Typed(ChartType::Line2D, 5, 1, [](int row, int) { return 1000.0 + row; }));
    EXPECT_NE(TextsOf(scene, PartCode::AxisLabel)[0].text, QStringLiteral("0"));
}

TEST(Lines, WithoutLineAndMarkersStillShowTheirPoints) {
    Chart chart = Typed(ChartType::Line2D, 5, 1, Ramp);
    chart.Plot.SeriesCollection(1).ShowLine = false;
    const Scene scene = LaidOut(chart);
    EXPECT_TRUE(ShapesOf<Polyline>(scene, PartCode::Series).empty());
    EXPECT_EQ(ShapesOf<MarkerRun>(scene, PartCode::Series).size(), 1U);
}

TEST(Lines, ManyPointsKeepEveryPeak) {
    const Scene scene = LaidOut(Typed(ChartType::Line2D, 32767, 1, [](int row, int) {
        return row == 12345 ? 50.0 : row == 20000 ? -50.0 : std::sin(row * 0.1);
    }));
    const auto lines = ShapesOf<Polyline>(scene, PartCode::Series);
    ASSERT_EQ(lines.size(), 1U);
    const auto points = scene.PointsOf(std::get<Polyline>(lines[0].geometry).points);
    EXPECT_LE(points.size(), 4U * 641U);
    double top = 1e9;
    double bottom = -1e9;
    for (const Point point : points) top = std::min(top, point.y), bottom = std::max(bottom, point.y);
    const Box plot = BoxOfPlot(scene);
    EXPECT_LT(top, plot.top + plot.Height() * 0.1);
    EXPECT_GT(bottom, plot.bottom - plot.Height() * 0.1);
}

TEST(Lines, ManyPointsKeepWideGaps) {
    const Scene scene = LaidOut(Typed(ChartType::Line2D, 32767, 1, [](int row, int) {
        return row > 10000 && row < 12000 ? Missing() : std::sin(row * 0.001);
    }));
    EXPECT_EQ(ShapesOf<Polyline>(scene, PartCode::Series).size(), 2U);
}

TEST(Areas, EndAtTheEndsOfThePlot) {
    const Scene scene = LaidOut(Typed(ChartType::Area2D, 5, 1, Ramp));
    const auto area = ShapesOf<Polygon>(scene, PartCode::Series).front();
    EXPECT_DOUBLE_EQ(area.bounds.left, BoxOfPlot(scene).left);
    EXPECT_NEAR(area.bounds.right, BoxOfPlot(scene).right, 1e-9);
}

TEST(Areas, HaveGapsWhereValuesAreMissing) {
    const Scene scene = LaidOut(
        Typed(ChartType::Area2D, 7, 1, [](int row, int) { return row == 4 ? Missing() : 1.0 * row; }));
    EXPECT_EQ(ShapesOf<Polygon>(scene, PartCode::Series).size(), 2U);
}

TEST(Steps, RunLevelThroughEachSlot) {
    const Scene scene = LaidOut(Typed(ChartType::Step2D, 3, 1, Ramp));
    const auto line = ShapesOf<Polyline>(scene, PartCode::Series).front();
    const auto points = scene.PointsOf(std::get<Polyline>(line.geometry).points);
    ASSERT_EQ(points.size(), 6U);
    EXPECT_DOUBLE_EQ(points[0].y, points[1].y);
    EXPECT_DOUBLE_EQ(points[1].x, points[2].x);
}

TEST(Combination, DrawsEachSeriesAsItsType) {
    const Scene scene = LaidOut(Typed(ChartType::Combination2D, 3, 2, Ramp));
    EXPECT_EQ(ShapesOf<Rectangle>(scene, PartCode::Series).size(), 3U);
    EXPECT_EQ(ShapesOf<Polyline>(scene, PartCode::Series).size(), 1U);
}

TEST(Pies, OneForEachCategoryAndASliceForEachSeries) {
    const Scene scene = LaidOut(Typed(ChartType::Pie2D, 3, 4, Ramp));
    EXPECT_EQ(ShapesOf<Slice>(scene, PartCode::Series).size(), 12U);
    double turn = 0;
    for (const Shape& slice : ShapesOf<Slice>(scene, PartCode::Series))
        if (slice.part.index2 == 2) turn += std::get<Slice>(slice.geometry).spanAngle;
    EXPECT_NEAR(turn, 360, 1e-9);
}

TEST(Pies, NegativeAndZeroValuesHaveNoSliceAndAreTold) {
    const Scene scene = LaidOut(Typed(ChartType::Pie2D, 1, 3, [](int, int column) {
        return column == 1 ? -4.0 : column == 2 ? 0.0 : 5.0;
    }));
    EXPECT_EQ(ShapesOf<Slice>(scene, PartCode::Series).size(), 1U);
    EXPECT_EQ(scene.warnings, QStringList({QStringLiteral("1 negative values have no slice"),
                                           QStringLiteral("1 zeros have no slice")}));
}

TEST(Pies, ACategoryWithoutValuesKeepsItsPlaceAsARing) {
    const Scene scene =
        LaidOut(Typed(ChartType::Pie2D, 2, 2, [](int row, int) { return row == 1 ? Missing() : 1.0; }));
    EXPECT_EQ(ShapesOf<Slice>(scene, PartCode::Plot).size(), 1U);
}

TEST(Pies, ThousandsOfCategoriesShowWhatFitsAndTellTheRest) {
    const Scene scene = LaidOut(Typed(ChartType::Pie2D, 5000, 2, Ramp));
    EXPECT_LT(ShapesOf<Slice>(scene, PartCode::Series).size(), 2000U);
    EXPECT_EQ(scene.warnings.size(), 1);
}

TEST(Pies, APercentLabelTellsTheShareThatItsSliceShows) {
    Chart chart = Typed(ChartType::Pie2D, 1, 3, [](int, int column) {
        return column == 1 ? 3.0 : column == 2 ? 1.0 : -1.0;
    });
    for (int series = 1; series <= 3; ++series) {
        DataPointLabel& label =
            chart.Plot.SeriesCollection(series).DataPoints.Item(DataPoints::All).DataPointLabel;
        label.Component = LabelShowsPercent;
        label.LocationType = LabelLocation::Inside;
    }
    QStringList texts;
    for (const TextLine& text : TextsOf(LaidOut(chart), PartCode::PointLabel)) texts += text.text;
    EXPECT_EQ(texts, (QStringList{QStringLiteral("75%"), QStringLiteral("25%")}));
}

TEST(XY, PairsTakeXFromTheirOwnColumnAndYFromTheNext) {
    const Scene scene = LaidOut(Typed(ChartType::XY2D, 2, 2, [](int row, int column) {
        return column == 1 ? (row == 1 ? 0.0 : 10.0) : (row == 1 ? 0.0 : 100.0);
    }));
    const auto line = ShapesOf<Polyline>(scene, PartCode::Series).front();
    const auto points = scene.PointsOf(std::get<Polyline>(line.geometry).points);
    const Box plot = BoxOfPlot(scene);
    EXPECT_NEAR(points[0].x, plot.left, 1e-9);
    EXPECT_NEAR(points[1].x, plot.right, 1e-9);
    EXPECT_NEAR(points[1].y, plot.top, 1e-9);
}

TEST(XY, AnUnpairedLastColumnIsDrawnOverTheRowNumbers) {
    Chart chart = Typed(ChartType::XY2D, 4, 1, [](int row, int) { return row * row * 1.0; });
    chart.Plot.SeriesCollection(1).ShowLine = false;
    const Scene scene = LaidOut(chart);
    const auto markers = ShapesOf<MarkerRun>(scene, PartCode::Series).front();
    const auto points = scene.PointsOf(std::get<MarkerRun>(markers.geometry).points);
    ASSERT_EQ(points.size(), 4U);
    EXPECT_NEAR(points[1].x - points[0].x, points[3].x - points[2].x, 1e-9);
}

TEST(XY, APointAloneBetweenMissingOnesIsADot) {
    Chart chart = Typed(ChartType::XY2D, 6, 2, [](int row, int) { return row * 1.0; });
    chart.DataGrid.SetValue(2, 2, Missing());
    chart.DataGrid.SetValue(4, 1, Missing());
    const LaidOutChart laidOut = LaidOutWhole(chart);
    const auto dots = ShapesOf<MarkerRun>(laidOut.scene, PartCode::Series);
    ASSERT_EQ(dots.size(), 1U);
    const auto points = laidOut.scene.PointsOf(std::get<MarkerRun>(dots[0].geometry).points);
    const std::vector<Point> alone{*laidOut.places.At({1, 1}), *laidOut.places.At({1, 3})};
    EXPECT_EQ(std::vector<Point>(points.begin(), points.end()), alone);
    EXPECT_EQ(ShapesOf<Polyline>(laidOut.scene, PartCode::Series).size(), 1U); // from the fifth to the sixth
}

TEST(XY, OneMarkerForEachPixelHoweverManyPoints) {
    Chart chart =
        Typed(ChartType::XY2D, 30000, 2, [](int row, int column) { return (row * (column + 6)) % 7 * 1.0; });
    chart.Plot.SeriesCollection(1).ShowLine = false;
    const Scene scene = LaidOut(chart);
    const auto markers = ShapesOf<MarkerRun>(scene, PartCode::Series).front();
    EXPECT_LE(std::get<MarkerRun>(markers.geometry).points.count, 49U);
}

TEST(LargeTables, TheLargestGridIsLaidOut) {
    Chart chart;
    chart.SetGridSize(32767, 255);
    for (int column = 1; column <= 255; ++column) {
        double value = column;
        for (double& cell : chart.DataGrid.WritableColumn(column)) cell = value += 0.25;
    }
    chart.SetChartType(ChartType::Line2D);
    const Scene scene = LaidOut(chart);
    EXPECT_EQ(ShapesOf<Polyline>(scene, PartCode::Series).size(), 255U);
    EXPECT_LE(scene.points.size(), 255U * 4U * 641U);
}

TEST(LargeTables, ExtremeValuesStayFinite) {
    for (const double extreme : {1.7e308, -1.7e308, 5e-324, 1e300}) {
        const Scene scene =
            LaidOut(Typed(ChartType::Line2D, 3, 1, [&](int row, int) { return row == 2 ? extreme : 0.0; }));
        for (const Point point : scene.points) EXPECT_TRUE(std::isfinite(point.y)) << extreme;
    }
}

} // namespace
} // namespace QmChart6

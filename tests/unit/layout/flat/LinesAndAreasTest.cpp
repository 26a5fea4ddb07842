#include "chartcontrol/model/ColourContrast.h"
#include "unit/layout/LayoutSupport.h"

#include <gtest/gtest.h>

#include <cmath>

namespace QmChart6 {
namespace {

using Samples::ChartOf;
using Samples::Missing;

Chart Named(ChartType type, int series = 3) {
    Chart chart = ChartOf(12, series, [](int row, int column) { return column * 10.0 + row; });
    chart.SetChartType(type);
    chart.Plot.DirectNames = true;
    return chart;
}

TEST(DirectNames, StandAtTheEndsOfLinesInPlaceOfALegend) {
    const Scene scene = LaidOut(Named(ChartType::Line2D));
    const std::vector<TextLine> names = TextsOf(scene, PartCode::Legend);
    ASSERT_EQ(names.size(), 3U);
    for (const TextLine& name : names) EXPECT_GT(name.origin.x, BoxOfPlot(scene).right);
    // The third series ends highest.
    EXPECT_EQ(names.front().text, QStringLiteral("Series 3"));
}

TEST(DirectNames, HaveTheColourOfTheirLineAndAreRead) {
    Chart chart = Named(ChartType::Line2D);
    const Colour yellow{240, 220, 60};
    chart.Plot.SeriesCollection(3).DataPoints.Item(DataPoints::All).Brush.FillColor = yellow;
    const Colour colour = TextsOf(LaidOut(chart), PartCode::Legend).front().font.VtColor;
    EXPECT_GE(Contrast(colour, {255, 255, 255}), TextContrast);
    EXPECT_GT(colour.Red, colour.Blue);
}

TEST(DirectNames, ALegendThatIsAskedForStays) {
    Chart chart = Named(ChartType::Line2D);
    chart.ShowLegend = true;
    chart.LegendFollowsData = false;
    const Scene scene = LaidOut(chart);
    EXPECT_EQ(ShapesOf<Polyline>(scene, PartCode::Legend).size(), 3U);
}

TEST(DirectNames, WhereTheyDoNotFitTheLegendTellsThem) {
    Chart many = Named(ChartType::Line2D, 30);
    EXPECT_GT(ShapesOf<Polyline>(LaidOut(many), PartCode::Legend).size(), 3U);
    const Chart bars = Named(ChartType::Bar2D);
    EXPECT_EQ(ShapesOf<Rectangle>(LaidOut(bars), PartCode::Legend).size(), 4U); // samples and the whole
}

TEST(DirectNames, BesideAPlotThatAPersonMadeNarrowGiveWayToTheLegend) {
    Chart chart = Named(ChartType::Line2D);
    chart.Plot.AutoLayout = false;
    chart.Plot.LocationRect = {{20, 40}, {80, 200}};
    EXPECT_EQ(ShapesOf<Polyline>(LaidOut(chart), PartCode::Legend).size(), 3U);
}

TEST(DirectNames, ThatWouldMeetAreMovedApart) {
    Chart chart = ChartOf(5, 4, [](int row, int column) { return 100.0 * row + column * 0.1; });
    chart.SetChartType(ChartType::Line2D);
    chart.Plot.DirectNames = true;
    const std::vector<TextLine> names = TextsOf(LaidOut(chart), PartCode::Legend);
    ASSERT_EQ(names.size(), 4U);
    for (std::size_t i = 1; i < names.size(); ++i)
        EXPECT_GE(names[i].origin.y - names[i - 1].origin.y, names[i].ascent + names[i].descent - 0.01);
}

TEST(Areas, ThatCoverEachOtherAreTranslucentAndPiledOnesAreNot) {
    Chart chart = ChartOf(4, 2, [](int row, int column) { return row * 1.0 * column; });
    chart.SetChartType(ChartType::Area2D);
    for (const Shape& shape : ShapesOf<Polygon>(LaidOut(chart), PartCode::Series))
        EXPECT_LT(shape.fill.opacity, 1);
    chart.Stacking = true;
    for (const Shape& shape : ShapesOf<Polygon>(LaidOut(chart), PartCode::Series))
        EXPECT_EQ(shape.fill.opacity, 1);
}

TEST(Areas, ALoneValueAtAnEndStaysWithinThePlot) {
    Chart chart = ChartOf(3, 1, [](int row, int) { return row == 1 ? 5.0 : Missing(); });
    chart.SetChartType(ChartType::Area2D);
    const Scene scene = LaidOut(chart);
    for (const Shape& shape : ShapesOf<Polygon>(scene, PartCode::Series))
        EXPECT_GE(shape.bounds.left, BoxOfPlot(scene).left - 1e-9);
}

TEST(Lines, OfPatternedSeriesTakeTheColourThatIsSeen) {
    Chart chart = ChartOf(3, 1, [](int row, int) { return row * 1.0; });
    chart.SetChartType(ChartType::Line2D);
    chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).Brush = {
        BrushStyle::Hatch, 2, {255, 255, 255}, {20, 40, 90}};
    EXPECT_EQ(ShapesOf<Polyline>(LaidOut(chart), PartCode::Series).front().stroke.colour,
              (Colour{20, 40, 90}));
}

TEST(Markers, AreThinnedOnADenseLineAndKeptWithoutOne) {
    Chart chart = ChartOf(300, 1, [](int row, int) { return row * 1.0; });
    chart.SetChartType(ChartType::Line2D);
    chart.Plot.SeriesCollection(1).SeriesMarker.Show = true;
    const auto count = [](const Scene& scene) {
        return std::get<MarkerRun>(ShapesOf<MarkerRun>(scene, PartCode::Series).front().geometry)
            .points.count;
    };
    EXPECT_LT(count(LaidOut(chart)), 60U);
    chart.Plot.SeriesCollection(1).ShowLine = false;
    EXPECT_EQ(count(LaidOut(chart)), 300U);
}

TEST(Markers, OfCrowdedPointsAreHollowAndOfOthersFilled) {
    Chart crowd = ChartOf(900, 2, [](int row, int column) { return std::sin(row * column * 1.7); });
    crowd.SetChartType(ChartType::XY2D);
    crowd.Plot.SeriesCollection(1).ShowLine = false;
    const Shape hollow = ShapesOf<MarkerRun>(LaidOut(crowd), PartCode::Series).front();
    EXPECT_EQ(hollow.fill.style, BrushStyle::None);
    EXPECT_EQ(hollow.stroke.style, PenStyle::Solid);
    Chart apart = ChartOf(5, 2, [](int row, int column) { return row * 1.0 * column; });
    apart.SetChartType(ChartType::XY2D);
    apart.Plot.SeriesCollection(1).ShowLine = false;
    EXPECT_EQ(ShapesOf<MarkerRun>(LaidOut(apart), PartCode::Series).front().fill.style, BrushStyle::Solid);
}

TEST(MiddlingGround, TextsThatNobodyColouredAreBlack) {
    Chart chart = ChartOf(3, 2, [](int row, int) { return row * 1.0; });
    chart.Backdrop.Fill.Brush.FillColor = {128, 128, 128};
    for (const TextLine& text : TextsOf(LaidOut(chart), PartCode::AxisLabel))
        EXPECT_EQ(text.font.VtColor, (Colour{0, 0, 0}));
}

TEST(DarkGround, TextsThatNobodyColouredAreLightAndOthersStay) {
    Chart chart = ChartOf(3, 2, [](int row, int) { return row * 1.0; });
    chart.Title.Text = QStringLiteral("Title");
    chart.Backdrop.Fill.Brush.FillColor = {30, 34, 39};
    chart.Plot.Axis(AxisId::Y).Labels.Item(1).VtFont.VtColor = {90, 90, 90};
    const Scene scene = LaidOut(chart);
    const Colour ground{30, 34, 39};
    EXPECT_GE(Contrast(TextsOf(scene, PartCode::Title).front().font.VtColor, ground), TextContrast);
    for (const Shape& shape : ShapesOf<TextLine>(scene, PartCode::AxisLabel)) {
        const Colour colour = std::get<TextLine>(shape.geometry).font.VtColor;
        if (shape.part.index1 == static_cast<int>(AxisId::Y))
            EXPECT_EQ(colour, (Colour{90, 90, 90}));
        else
            EXPECT_GE(Contrast(colour, ground), TextContrast);
    }
}

} // namespace
} // namespace QmChart6

#include "unit/layout/LayoutSupport.h"

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

using Samples::ChartOf;

double Ramp(int row, int column) {
    return 10.0 * row + column;
}

TEST(Legend, NeverCoversThePlot) {
    for (const LocationType location :
         {LocationType::TopLeft, LocationType::Top, LocationType::TopRight, LocationType::Left,
          LocationType::Right, LocationType::BottomLeft, LocationType::Bottom, LocationType::BottomRight}) {
        Chart chart = ChartOf(6, 5, Ramp);
        chart.Legend.Location.LocationType = location;
        const Scene scene = LaidOut(chart);
        const Box plot = BoxOfPlot(scene);
        for (const Shape& shape : scene.shapes) {
            if (shape.part.code != PartCode::Legend) continue;
            EXPECT_TRUE(shape.bounds.right <= plot.left || shape.bounds.left >= plot.right ||
                        shape.bounds.bottom <= plot.top || shape.bounds.top >= plot.bottom);
        }
    }
}

TEST(Legend, WrapsIntoColumns) {
    const Scene scene = LaidOut(ChartOf(3, 32, Ramp));
    const auto names = TextsOf(scene, PartCode::Legend);
    ASSERT_EQ(names.size(), 32U);
    EXPECT_GT(names.back().origin.x, names.front().origin.x);
}

TEST(Legend, ElidesLongNames) {
    Chart chart = ChartOf(3, 2, Ramp);
    chart.DataGrid.SetColumnLabel(1, QString(300, QLatin1Char('x')));
    const auto names = TextsOf(LaidOut(chart), PartCode::Legend);
    EXPECT_LE(names[0].width, 480 / 3.0);
}

TEST(Legend, TellsHowManySeriesHaveNoRoom) {
    const Scene scene = LaidOut(ChartOf(3, 255, Ramp));
    const auto names = TextsOf(scene, PartCode::Legend);
    EXPECT_TRUE(names.back().text.contains(QLatin1Char('+')));
    EXPECT_EQ(scene.warnings.size(), 1);
}

TEST(Legend, BesideAPileNamesItsTopFirst) {
    Chart chart = ChartOf(3, 3, Ramp);
    EXPECT_EQ(TextsOf(LaidOut(chart), PartCode::Legend).front().text, QStringLiteral("Series 1"));
    chart.Stacking = true;
    EXPECT_EQ(TextsOf(LaidOut(chart), PartCode::Legend).front().text, QStringLiteral("Series 3"));
    chart.Legend.Location.LocationType = LocationType::Bottom;
    EXPECT_EQ(TextsOf(LaidOut(chart), PartCode::Legend).front().text, QStringLiteral("Series 1"));
}

TEST(Legend, NamesThatBeginAlikeKeepTheirEnds) {
    Chart chart = ChartOf(3, 2, Ramp);
    chart.DataGrid.SetColumnLabel(1,
                                  QStringLiteral("Department of Agricultural Economics and Sociology North"));
    chart.DataGrid.SetColumnLabel(2,
                                  QStringLiteral("Department of Agricultural Economics and Sociology South"));
    const auto names = TextsOf(LaidOut(chart), PartCode::Legend);
    EXPECT_TRUE(names[0].text.endsWith(QStringLiteral("North")));
    EXPECT_TRUE(names[1].text.endsWith(QStringLiteral("South")));
}

TEST(Legend, HowManyAreMissingIsToldWhole) {
    for (const double width : {200.0, 300.0, 480.0}) {
        const auto names = TextsOf(LaidOut(ChartOf(3, 255, Ramp), {width, 315}), PartCode::Legend);
        ASSERT_FALSE(names.empty());
        EXPECT_EQ(names.back().text,
                  QStringLiteral("\u2026 +%1").arg(255 - (static_cast<int>(names.size()) - 1)));
    }
}

TEST(Legend, OfManySeriesShowsFewerWithWholeNames) {
    Chart chart = ChartOf(3, 60, Ramp);
    for (int column = 1; column <= 60; ++column)
        chart.DataGrid.SetColumnLabel(column, QStringLiteral("Sensor %1").arg(column));
    for (const TextLine& name : TextsOf(LaidOut(chart), PartCode::Legend))
        EXPECT_TRUE(name.text.startsWith(QStringLiteral("Sensor ")) || name.text.contains(QLatin1Char('+')))
            << name.text.toStdString();
}

TEST(Legend, InANarrowChartGoesBelowAndKeepsItsNames) {
    const Scene scene = LaidOut(ChartOf(3, 3, Ramp), {150, 300});
    const auto names = TextsOf(scene, PartCode::Legend);
    ASSERT_EQ(names.size(), 3U);
    for (const TextLine& name : names) {
        EXPECT_TRUE(name.text.startsWith(QStringLiteral("Series")));
        EXPECT_GT(name.origin.y, BoxOfPlot(scene).bottom);
    }
}

TEST(Legend, NamesMoreThanOneOfThreeOrNone) {
    Chart chart = ChartOf(3, 3, Ramp);
    chart.SetChartType(ChartType::Line2D);
    for (double width = 90; width <= 240; width += 6)
        for (double height = 80; height <= 160; height += 8)
            EXPECT_NE(TextsOf(LaidOut(chart, {width, height}), PartCode::Legend).size(), 2U)
                << width << " by " << height;
}

TEST(Legend, IsNotShownForOneSeries) {
    EXPECT_TRUE(TextsOf(LaidOut(ChartOf(3, 1, Ramp)), PartCode::Legend).empty());
}

/// The texts of the legend, or of the names that stand in for it.
std::size_t NamesOf(const Chart& chart) {
    return TextsOf(LaidOut(chart), PartCode::Legend).size();
}

bool NamesAreBesideThePlot(const Chart& chart) {
    const Scene scene = LaidOut(chart);
    const auto names = TextsOf(scene, PartCode::Legend);
    return !names.empty() && names.front().origin.y > BoxOfPlot(scene).Center().y;
}

TEST(Legend, GivesWayToNamesAtTheLinesUntilSomebodyAsksForIt) {
    // Lines that end low: the legend begins at the height of its middle, their names stand where they end.
    Chart chart = ChartOf(3, 2, [](int row, int column) { return row == 3 ? 1.0 * column : 100.0; });
    chart.SetChartType(ChartType::Line2D);
    chart.Legend.Location.LocationType = LocationType::TopRight;
    chart.Plot.DirectNames = true;
    EXPECT_TRUE(NamesAreBesideThePlot(chart));
    chart.LegendFollowsData = false;
    chart.ShowLegend = true;
    EXPECT_FALSE(NamesAreBesideThePlot(chart));
}

TEST(Legend, StandsInForNamesThatHaveNoPlaceUnlessSomebodyTurnedItOff) {
    Chart chart = ChartOf(3, 2, Ramp);
    chart.Plot.DirectNames = true;
    EXPECT_EQ(NamesOf(chart), 2U); // bars have no ends
    chart.LegendFollowsData = false;
    chart.ShowLegend = false;
    EXPECT_EQ(NamesOf(chart), 0U);
}

} // namespace
} // namespace QmChart6

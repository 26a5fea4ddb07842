#include "chartcontrol/model/Chart.h"
#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/model/Palette.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

#include <cmath>

namespace QmChart6 {
namespace {

Chart ChartOf(int rows, int columns) {
    Chart chart;
    chart.SetGridSize(rows, columns);
    return chart;
}

TEST(Chart, ANewChartIsAnEmptyTwoDimensionalBarChart) {
    const Chart chart;
    EXPECT_EQ(chart.chartType(), ChartType::Bar2D);
    EXPECT_EQ(chart.Plot.SeriesCollection.Count(), 0);
    EXPECT_FALSE(chart.ShowLegend);
}

TEST(Chart, SeriesFollowTheGrid) {
    Chart chart = ChartOf(3, 5);
    EXPECT_EQ(chart.Plot.SeriesCollection.Count(), 5);
    chart.SetDataSeriesInRow(true);
    EXPECT_EQ(chart.Plot.SeriesCollection.Count(), 3);
    chart.SetGridSize(7, 2);
    EXPECT_EQ(chart.Plot.SeriesCollection.Count(), 7);
}

TEST(Chart, KeepsTheLookOfSeriesThatStay) {
    Chart chart = ChartOf(3, 2);
    chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).Brush.FillColor.Set(1, 2, 3);
    chart.SetGridSize(9, 4);
    EXPECT_EQ(chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).Brush.FillColor,
              (Colour{1, 2, 3}));
    EXPECT_EQ(chart.Plot.SeriesCollection(4).DataPoints.Item(DataPoints::All).Brush.FillColor,
              PaletteColour(4));
}

TEST(Chart, LegendFollowsTheNumberOfSeriesUntilSomebodyDecides) {
    Chart chart = ChartOf(3, 2);
    EXPECT_TRUE(chart.ShowLegend);
    chart.SetGridSize(3, 1);
    EXPECT_FALSE(chart.ShowLegend);
    chart.ShowLegend = true;
    chart.LegendFollowsData = false;
    chart.SetGridSize(4, 1);
    EXPECT_TRUE(chart.ShowLegend);
}

TEST(Chart, ACombinationIsHalfBarsHalfLines) {
    Chart chart = ChartOf(3, 5);
    chart.SetChartType(ChartType::Combination2D);
    EXPECT_EQ(chart.Plot.SeriesCollection(3).SeriesType, SeriesType::Bar2D);
    EXPECT_EQ(chart.Plot.SeriesCollection(4).SeriesType, SeriesType::Line2D);
}

TEST(Chart, CopiesAreIndependent) {
    Chart chart = ChartOf(2, 2);
    Chart copy = chart;
    copy.DataGrid.SetValue(1, 1, 5);
    EXPECT_TRUE(std::isnan(chart.DataGrid.Value(1, 1)));
    EXPECT_FALSE(chart == copy);
    copy.DataGrid.SetValue(1, 1, std::nan(""));
    EXPECT_TRUE(chart == copy);
}

TEST(DataGrid, RowsAndColumnsShareTheirValues) {
    Chart chart = ChartOf(2, 3);
    for (int row = 1; row <= 2; ++row)
        for (int column = 1; column <= 3; ++column) chart.DataGrid.SetValue(row, column, 10 * row + column);
    EXPECT_EQ(chart.DataGrid.Column(2)[1], 22);
    EXPECT_EQ(chart.DataGrid.Row(2)[0], 21);
    EXPECT_EQ(chart.DataGrid.Row(1).count, 3);
}

TEST(Collections, AnIndexOutsideRaisesSubscriptOutOfRange) {
    Chart chart = ChartOf(2, 3);
    EXPECT_RAISES(9, chart.Plot.SeriesCollection.Item(0));
    EXPECT_RAISES(9, chart.Plot.SeriesCollection.Item(4));
    EXPECT_RAISES(9, chart.DataGrid.Value(3, 1));
    EXPECT_RAISES(9, chart.DataGrid.SetColumnLabel(4, {}));
    EXPECT_RAISES(9, chart.Plot.Axis(0, 2));
    EXPECT_RAISES(9, chart.Plot.Axis(0).Labels.Item(2));
    EXPECT_RAISES(9, chart.Plot.SeriesCollection(1).DataPoints.Item(0));
}

TEST(Collections, AnAxisIdOutsideRaisesInvalidProcedureCall) {
    Chart chart;
    EXPECT_RAISES(5, chart.Plot.Axis(4));
    EXPECT_RAISES(5, chart.Plot.Axis(-1));
}

TEST(Enumerations, ANumberWithoutAMeaningRaisesInvalidPropertyValue) {
    EXPECT_RAISES(380, ToChartType(10));
    EXPECT_RAISES(380, ToChartType(-1));
    EXPECT_RAISES(380, ToSeriesType(2));
    EXPECT_RAISES(380, ToPenStyle(4));
    EXPECT_EQ(ToChartType(16), ChartType::XY2D);
    EXPECT_EQ(ToSeriesType(24), SeriesType::Pie2D);
    Colour colour;
    EXPECT_RAISES(380, colour.Set(0, 256, 0));
}

TEST(Enumerations, GridSizesOutsideRaiseInvalidPropertyValue) {
    Chart chart;
    EXPECT_RAISES(380, chart.SetGridSize(-1, 2));
    EXPECT_RAISES(380, chart.SetGridSize(2, 40000));
}

TEST(Palette, SeriesOfTheSameColourDifferInHatchAndLine) {
    const Series first = PaletteSeries(1, SeriesType::Bar2D);
    const Series second = PaletteSeries(1 + PaletteSize, SeriesType::Bar2D);
    EXPECT_EQ(first.DataPoints.Item(DataPoints::All).Brush.FillColor,
              second.DataPoints.Item(DataPoints::All).Brush.FillColor);
    EXPECT_NE(first.DataPoints.Item(DataPoints::All).Brush, second.DataPoints.Item(DataPoints::All).Brush);
    EXPECT_NE(first.LinePen, second.LinePen);
}

} // namespace
} // namespace QmChart6

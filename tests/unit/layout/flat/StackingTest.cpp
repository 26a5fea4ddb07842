#include "unit/layout/LayoutSupport.h"

#include "chartcontrol/layout/data/PlottedValues.h"
#include "chartcontrol/layout/data/Statistics.h"

#include <gtest/gtest.h>

#include <cmath>

namespace QmChart6 {
namespace {

using Samples::ChartOf;
using Samples::Missing;

Chart Stacked(const std::vector<double>& row, bool shares = false) {
    Chart chart = ChartOf(1, static_cast<int>(row.size()),
                          [&](int, int column) { return row[static_cast<std::size_t>(column) - 1]; });
    chart.Stacking = true;
    if (shares) {
        chart.Plot.Axis(AxisId::Y).AxisScale.Type = ScaleType::Percent;
        chart.Plot.Axis(AxisId::Y).AxisScale.PercentBasis = PercentBasis::SumOfRow;
    }
    return chart;
}

TEST(Stacking, PilesUpInTheOrderOfTheSeries) {
    const Chart chart = Stacked({1, 2, 4});
    const PlottedValues plotted(chart);
    EXPECT_EQ(plotted.Top(1)[0], 1);
    EXPECT_EQ(plotted.Top(2)[0], 3);
    EXPECT_EQ(plotted.Top(3)[0], 7);
    EXPECT_EQ(plotted.Base(3)[0], 3);
}

TEST(Stacking, NegativesPileDownwards) {
    const Chart chart = Stacked({1, -2, 4, -8});
    const PlottedValues plotted(chart);
    EXPECT_EQ(plotted.Top(2)[0], -2);
    EXPECT_EQ(plotted.Top(3)[0], 5);
    EXPECT_EQ(plotted.Base(4)[0], -2);
    EXPECT_EQ(plotted.Top(4)[0], -10);
}

TEST(Stacking, AMissingValueAddsNothing) {
    const Chart chart = Stacked({1, Missing(), 4});
    const PlottedValues plotted(chart);
    EXPECT_TRUE(std::isnan(plotted.Top(2)[0]));
    EXPECT_EQ(plotted.Base(3)[0], 1);
}

TEST(Stacking, SharesOfTheRowNeverPassTheWhole) {
    const Chart chart = Stacked({1, -2, 4, -3}, true);
    const PlottedValues plotted(chart);
    EXPECT_DOUBLE_EQ(plotted.Top(1)[0], 0.1);
    EXPECT_DOUBLE_EQ(plotted.Top(3)[0], 0.5);
    EXPECT_DOUBLE_EQ(plotted.Top(4)[0], -0.5);
}

TEST(Stacking, SharesOfNothingAreNothing) {
    const Chart chart = Stacked({0, 0}, true);
    EXPECT_EQ(PlottedValues(chart).Top(2)[0], 0);
}

TEST(Stacking, ThirdsAddUpToExactlyOne) {
    const Chart chart = Stacked({1, 1, 1}, true);
    EXPECT_EQ(PlottedValues(chart).Top(3)[0], 1);
    std::vector<TextLine> labels = TextsOf(LaidOut(Stacked({1, 1, 1}, true)), PartCode::AxisLabel);
    for (const TextLine& label : labels) EXPECT_NE(label.text, QStringLiteral("1.2"));
}

TEST(Stacking, EachPercentBasisHasItsOwnWhole) {
    Chart chart = ChartOf(2, 2, [](int row, int column) { return row == 1 ? column * 1.0 : column * 3.0; });
    AxisScale& scale = chart.Plot.Axis(AxisId::Y).AxisScale;
    scale.Type = ScaleType::Percent;
    const auto share = [&](PercentBasis basis) {
        scale.PercentBasis = basis;
        return PlottedValues(chart).Top(1)[1]; // 3 of the table 1 2 / 3 6
    };
    EXPECT_DOUBLE_EQ(share(PercentBasis::MaximumOfChart), 3.0 / 6);
    EXPECT_DOUBLE_EQ(share(PercentBasis::MaximumOfRow), 3.0 / 6);
    EXPECT_DOUBLE_EQ(share(PercentBasis::MaximumOfColumn), 3.0 / 3);
    EXPECT_DOUBLE_EQ(share(PercentBasis::SumOfChart), 3.0 / 12);
    EXPECT_DOUBLE_EQ(share(PercentBasis::SumOfRow), 3.0 / 9);
    EXPECT_DOUBLE_EQ(share(PercentBasis::SumOfColumn), 3.0 / 4);
}

TEST(Stacking, PiledBarsStandInOnePlace) {
    const auto bars = ShapesOf<Rectangle>(LaidOut(Stacked({1, 2, 4})), PartCode::Series);
    ASSERT_EQ(bars.size(), 3U);
    EXPECT_DOUBLE_EQ(bars[0].bounds.left, bars[2].bounds.left);
    EXPECT_DOUBLE_EQ(bars[0].bounds.top, bars[1].bounds.bottom);
}

TEST(Stacking, OpenAreasAreDrawnAsBands) {
    Chart chart = ChartOf(4, 2, [](int row, int column) { return row * 1.0 * column; });
    chart.SetChartType(ChartType::Area2D);
    chart.Stacking = true;
    const auto pointsOfAreas = [&] {
        std::size_t points = 0;
        for (const Shape& shape : ShapesOf<Polygon>(LaidOut(chart), PartCode::Series))
            points += std::get<Polygon>(shape.geometry).points.count;
        return points;
    };
    const std::size_t closed = pointsOfAreas();
    chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).Brush.Style = BrushStyle::None;
    EXPECT_GT(pointsOfAreas(), closed);
}

Statistics Of(const std::vector<double>& values) {
    Statistics statistics;
    for (std::size_t i = 0; i < values.size(); ++i) statistics.Add(static_cast<double>(i) + 1, values[i]);
    return statistics;
}

TEST(Statistics, OfAKnownSample) {
    const Statistics statistics = Of({2, 4, 4, 4, 5, 5, 7, 9});
    EXPECT_EQ(statistics.Minimum(), 2);
    EXPECT_EQ(statistics.Maximum(), 9);
    EXPECT_DOUBLE_EQ(statistics.Mean(), 5);
    EXPECT_NEAR(statistics.StandardDeviation(), std::sqrt(32.0 / 7), 1e-12);
}

TEST(Statistics, RegressionGoesThroughPointsOfALine) {
    const Statistics statistics = Of({3, 5, 7, 9});
    EXPECT_NEAR(statistics.Fitted(10), 21, 1e-12);
}

TEST(Statistics, KeepDigitsOfLargeValues) {
    EXPECT_NEAR(Of({1e9 + 4, 1e9 + 7, 1e9 + 13, 1e9 + 16}).StandardDeviation(), std::sqrt(30.0), 1e-6);
}

TEST(StatisticsLines, EachFlagHasItsLines) {
    const std::vector<std::pair<int, std::size_t>> lines{{StatMinimum, 1},    {StatMaximum, 1},
                                                         {StatMean, 1},       {StatStandardDeviation, 2},
                                                         {StatRegression, 1}, {31, 6}};
    for (const auto& [flag, count] : lines) {
        Chart chart = ChartOf(6, 1, [](int row, int) { return row * row * 1.0; });
        chart.Plot.SeriesCollection(1).StatLine.Flag = flag;
        chart.Plot.SeriesCollection(1).StatLine.VtColor = {1, 2, 3};
        const auto drawn = ShapesOf<Polyline>(LaidOut(chart), PartCode::Statistics);
        std::size_t coloured = 0;
        for (const Shape& shape : drawn) coloured += shape.stroke.colour == Colour{1, 2, 3} ? 1U : 0U;
        EXPECT_EQ(coloured, count) << flag;
    }
}

TEST(StatisticsLines, PiledSeriesHaveNone) {
    Chart chart = ChartOf(6, 2, [](int row, int) { return row * 1.0; });
    chart.Plot.SeriesCollection(1).StatLine.Flag = 31;
    chart.Stacking = true;
    EXPECT_TRUE(ShapesOf<Polyline>(LaidOut(chart), PartCode::Series).empty());
}

} // namespace
} // namespace QmChart6

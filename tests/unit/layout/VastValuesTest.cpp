#include "unit/layout/LayoutSupport.h"

#include "chartcontrol/model/ChartKinds.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

// The largest doubles of both signs in one table, beside ordinary values: in every kind of chart and form
// nothing overflows.

namespace QmChart6 {
namespace {

constexpr double Largest = std::numeric_limits<double>::max();
constexpr int Seeds = 40;

class VastChart {
public:
    VastChart(ChartType type, unsigned seed) : random_(seed) {
        chart = Samples::ChartOf(Between(1, 8), Between(1, 4), [this](int, int) { return Cell(); });
        chart.SetChartType(type);
        chart.Stacking = Between(0, 1) == 0;
        chart.Plot.Projection = Between(0, 1) == 0 ? Projection::Perspective : Projection::Oblique;
        Axis& upright = chart.Plot.Axis(AxisId::Y);
        upright.AxisScale.Type = static_cast<ScaleType>(Between(0, 2));
        upright.AxisScale.PercentBasis = static_cast<PercentBasis>(Between(0, 5));
        chart.Plot.Axis(AxisId::X).AxisScale.Type = static_cast<ScaleType>(Between(0, 1));
        if (Between(0, 3) == 0) upright.ValueScale = {false, -Largest, Largest, Between(1, 5)};
        if (Between(0, 3) == 0) upright.ValueScale = {false, 0, 1, 4};
        for (Series& series : chart.Plot.SeriesCollection) {
            series.SecondaryAxis = Between(0, 3) == 0;
            series.SeriesMarker.Show = Between(0, 1) == 0;
            series.StatLine.Flag =
                StatMinimum | StatMaximum | StatMean | StatStandardDeviation | StatRegression;
            DataPointLabel& label = series.DataPoints.Item(DataPoints::All).DataPointLabel;
            label.LocationType = LabelLocation::AbovePoint;
            label.Component = LabelShowsPercent;
        }
    }

    Chart chart;

private:
    int Between(int least, int greatest) { return std::uniform_int_distribution(least, greatest)(random_); }
    double Cell() {
        constexpr std::array cells{Largest, -Largest, Largest, -Largest, 1e308, -3e200, 5e-300, 0.0, 7.0};
        const auto cell = static_cast<std::size_t>(Between(0, cells.size()));
        return cell < cells.size() ? cells[cell] : Samples::Missing();
    }

    std::mt19937 random_;
};

class VastValues : public testing::TestWithParam<ChartType> {};

TEST_P(VastValues, LeaveEveryNumberFinite) {
    for (unsigned seed = 1; seed <= Seeds; ++seed) {
        SCOPED_TRACE(seed);
        const Scene scene = LaidOut(VastChart(GetParam(), seed).chart);
        for (const Point point : scene.points) ASSERT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));
        for (const Shape& shape : scene.shapes) ASSERT_TRUE(shape.bounds.IsFinite());
        for (const QString& warning : scene.warnings)
            ASSERT_FALSE(warning.contains(QStringLiteral("finite"))) << warning.toStdString();
        for (const TextLine& label : TextsOf(scene, PartCode::AxisLabel)) {
            ASSERT_FALSE(label.text.contains(QStringLiteral("nan"))) << label.text.toStdString();
            ASSERT_FALSE(label.text.contains(QStringLiteral("inf"))) << label.text.toStdString();
        }
    }
}

/// Bounds of marks on an axis that is as long as its data.
TEST_P(VastValues, StandWithinThePlot) {
    for (unsigned seed = 1; seed <= Seeds; ++seed) {
        SCOPED_TRACE(seed);
        Chart chart = VastChart(GetParam(), seed).chart;
        chart.Plot.Axis(AxisId::Y).ValueScale = {};
        const Scene scene = LaidOut(chart);
        for (const Shape& shape : scene.shapes) {
            if (shape.clip != NoClip) continue;
            ASSERT_GT(shape.bounds.left, -10) << static_cast<int>(shape.part.code);
            ASSERT_LT(shape.bounds.right, scene.size.width + 10) << static_cast<int>(shape.part.code);
            ASSERT_GT(shape.bounds.top, -10) << static_cast<int>(shape.part.code);
            ASSERT_LT(shape.bounds.bottom, scene.size.height + 10) << static_cast<int>(shape.part.code);
        }
    }
}

std::vector<ChartType> Types() {
    std::vector<ChartType> types;
    for (const ChartKind& kind : ChartKinds) types.push_back(kind.type);
    return types;
}

INSTANTIATE_TEST_SUITE_P(Kinds, VastValues, testing::ValuesIn(Types()), [](const auto& kind) {
    return "Type" + std::to_string(static_cast<int>(kind.param));
});

TEST(VastValues, TwoLargestShareTheWholeEvenly) {
    Chart chart = Samples::ChartOf(1, 2, [](int, int) { return Largest; });
    chart.SetChartType(ChartType::Pie2D);
    for (const Shape& slice : ShapesOf<Slice>(LaidOut(chart), PartCode::Series))
        EXPECT_DOUBLE_EQ(std::get<Slice>(slice.geometry).spanAngle, 180);
    chart.SetChartType(ChartType::Bar2D);
    Axis& upright = chart.Plot.Axis(AxisId::Y);
    upright.AxisScale = {false, ScaleType::Percent, PercentBasis::SumOfRow};
    chart.Stacking = true;
    const auto bars = ShapesOf<Rectangle>(LaidOut(chart), PartCode::Series);
    ASSERT_EQ(bars.size(), 2U);
    EXPECT_NEAR(bars[0].bounds.Height(), bars[1].bounds.Height(), 1);
}

TEST(VastValues, TheMeanOfTheLargestAndItsNegativeIsZero) {
    Chart chart = Samples::ChartOf(2, 1, [](int row, int) { return row == 1 ? Largest : -Largest; });
    chart.SetChartType(ChartType::Line2D);
    chart.Plot.SeriesCollection(1).StatLine.Flag = StatMean;
    const Scene scene = LaidOut(chart);
    const auto lines = ShapesOf<Polyline>(scene, PartCode::Statistics);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NEAR(lines[0].bounds.Center().y, BoxOfPlot(scene).Center().y, 0.01);
}

} // namespace
} // namespace QmChart6

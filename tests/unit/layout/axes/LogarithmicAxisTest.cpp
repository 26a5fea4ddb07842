#include "unit/layout/LayoutSupport.h"

#include "chartcontrol/scale/AxisMap.h"

#include <gtest/gtest.h>

#include <cmath>

namespace QmChart6 {
namespace {

using Samples::ChartOf;

Chart LogarithmicChart(ChartType type, const std::vector<double>& values) {
    Chart chart = ChartOf(static_cast<int>(values.size()), 1,
                          [&](int row, int) { return values[static_cast<std::size_t>(row) - 1]; });
    chart.SetChartType(type);
    chart.Plot.Axis(AxisId::Y).AxisScale.Type = ScaleType::Logarithmic;
    return chart;
}

QStringList LabelsOf(const Scene& scene, AxisId id) {
    QStringList labels;
    for (const Shape& shape : ShapesOf<TextLine>(scene, PartCode::AxisLabel))
        if (shape.part.index1 == static_cast<int>(id)) labels += std::get<TextLine>(shape.geometry).text;
    return labels;
}

TEST(LogarithmicAxis, StandsOnPowersOfTen) {
    const Scene scene = LaidOut(LogarithmicChart(ChartType::Line2D, {0.02, 3, 20000}));
    EXPECT_EQ(LabelsOf(scene, AxisId::Y).join(QLatin1Char(' ')),
              QStringLiteral("0.01 0.1 1 10 100 1000 10,000 100,000"));
}

TEST(LogarithmicAxis, WritesPowersWhereDigitsWouldRunLong) {
    const Scene scene = LaidOut(LogarithmicChart(ChartType::Line2D, {1e-9, 1, 1e12}));
    const QStringList labels = LabelsOf(scene, AxisId::Y);
    EXPECT_TRUE(labels.contains(QStringLiteral("10¹²"))) << labels.join(QLatin1Char(' ')).toStdString();
    EXPECT_TRUE(labels.contains(QStringLiteral("1")));
}

TEST(LogarithmicAxis, LabelsSmallTicksWhateverItsFormatCanShow) {
    Chart chart = LogarithmicChart(ChartType::Line2D, {0.02, 3, 2000});
    chart.Plot.Axis(AxisId::Y).Labels.Item(1).Format = QStringLiteral("0");
    EXPECT_TRUE(LabelsOf(LaidOut(chart), AxisId::Y).contains(QStringLiteral("0.01")));
    chart = LogarithmicChart(ChartType::Line2D, {2, 3, 2000});
    chart.Plot.Axis(AxisId::Y).Labels.Item(1).Format = QStringLiteral("0.0");
    EXPECT_TRUE(LabelsOf(LaidOut(chart), AxisId::Y).contains(QStringLiteral("100.0")));
}

TEST(LogarithmicAxis, StandsEqualFactorsEquallyFarApart) {
    const Chart chart = LogarithmicChart(ChartType::Line2D, {1, 10, 100, 1000});
    const PointPlaces places = LaidOutWhole(chart).places;
    const double step = places.At({1, 1})->y - places.At({1, 2})->y;
    EXPECT_GT(step, 10);
    EXPECT_NEAR(places.At({1, 2})->y - places.At({1, 3})->y, step, 1e-9);
    EXPECT_NEAR(places.At({1, 3})->y - places.At({1, 4})->y, step, 1e-9);
}

TEST(LogarithmicAxis, HasNoPlaceForZeroAndLess) {
    for (const ChartType type : {ChartType::Bar2D, ChartType::Line2D, ChartType::Area2D, ChartType::Step2D,
                                 ChartType::Bar3D, ChartType::Line3D, ChartType::Area3D, ChartType::Step3D}) {
        const LaidOutChart laidOut = LaidOutWhole(LogarithmicChart(type, {10, 0, 20, -5, 30, -0.1}));
        EXPECT_TRUE(laidOut.places.At({1, 1}).has_value());
        for (const int category : {2, 4, 6})
            EXPECT_EQ(laidOut.places.At({1, category}), std::nullopt) << static_cast<int>(type);
        EXPECT_TRUE(laidOut.scene.warnings.contains(
            QStringLiteral("3 values are not above zero and have no place on a logarithmic axis")));
    }
}

TEST(LogarithmicAxis, HasNoPlaceForPairsOfWhichOneIsNotAboveZero) {
    Chart chart = ChartOf(4, 2, [](int row, int column) {
        return row == 2 && column == 1 ? -1.0 : row == 3 && column == 2 ? 0.0 : 10.0 * row;
    });
    chart.SetChartType(ChartType::XY2D);
    for (const AxisId id : {AxisId::X, AxisId::Y})
        chart.Plot.Axis(id).AxisScale.Type = ScaleType::Logarithmic;
    for (const bool markers : {false, true}) {
        chart.Plot.SeriesCollection(1).SeriesMarker.Show = markers;
        const LaidOutChart laidOut = LaidOutWhole(chart);
        EXPECT_EQ(laidOut.places.OfSeries(1).size(), 2U);
        EXPECT_TRUE(laidOut.scene.warnings.contains(
            QStringLiteral("2 values are not above zero and have no place on a logarithmic axis")));
        // The two that are left stand alone, as points without a line.
        const auto marks = ShapesOf<MarkerRun>(laidOut.scene, PartCode::Series);
        ASSERT_EQ(marks.size(), 1U);
        EXPECT_EQ(std::get<MarkerRun>(marks[0].geometry).points.count, 2U);
    }
}

TEST(LogarithmicAxis, BarsAndAreasStandOnItsLowerEnd) {
    for (const ChartType type : {ChartType::Bar2D, ChartType::Area2D}) {
        const Scene scene = LaidOut(LogarithmicChart(type, {5, 500, 50}));
        const Box plot = BoxOfPlot(scene);
        double bottom = 0;
        for (const Shape& shape : scene.shapes)
            if (shape.part.code == PartCode::Series) bottom = std::max(bottom, shape.bounds.bottom);
        EXPECT_NEAR(bottom, plot.bottom, 1.5);
    }
}

TEST(LogarithmicAxis, PilesReachToTheirSums) {
    Chart chart = ChartOf(1, 2, [](int, int column) { return column == 1 ? 30.0 : 970.0; });
    chart.Plot.Axis(AxisId::Y).AxisScale.Type = ScaleType::Logarithmic;
    chart.Stacking = true;
    const Scene scene = LaidOut(chart);
    const Box plot = BoxOfPlot(scene);
    const auto bars = ShapesOf<Rectangle>(scene, PartCode::Series);
    ASSERT_EQ(bars.size(), 2U);
    EXPECT_NEAR(std::get<Rectangle>(bars[0].geometry).box.bottom, plot.bottom, 1e-9);
    EXPECT_NEAR(std::get<Rectangle>(bars[1].geometry).box.bottom,
                std::get<Rectangle>(bars[0].geometry).box.top, 1e-9);
    // From 30 to 1,000, where the axis ends.
    EXPECT_NEAR(std::get<Rectangle>(bars[1].geometry).box.top, plot.top, 1e-9);
}

TEST(LogarithmicAxis, KeepsAFixedRangeAndIgnoresItsDivision) {
    Chart chart = LogarithmicChart(ChartType::Line2D, {5, 500, 50});
    chart.Plot.Axis(AxisId::Y).ValueScale = {false, 1, 10000, 7};
    const Scene scene = LaidOut(chart);
    EXPECT_EQ(LabelsOf(scene, AxisId::Y).join(QLatin1Char(' ')), QStringLiteral("1 10 100 1000 10,000"));
    chart.Plot.Axis(AxisId::Y).ValueScale = {false, 0, 10000, 7};
    EXPECT_FALSE(LabelsOf(LaidOut(chart), AxisId::Y).isEmpty());
}

TEST(LogarithmicAxis, RegressionIsACurve) {
    Chart chart = LogarithmicChart(ChartType::Line2D, {1, 20, 400, 900});
    chart.Plot.SeriesCollection(1).StatLine.Flag = StatRegression | StatMinimum;
    const LaidOutChart laidOut = LaidOutWhole(chart);
    std::size_t most = 0;
    for (const Shape& shape : ShapesOf<Polyline>(laidOut.scene, PartCode::Statistics))
        most = std::max(most, std::get<Polyline>(shape.geometry).points.count);
    EXPECT_GT(most, 20U);
}

TEST(LogarithmicAxis, TheSecondOneMirrorsItsScale) {
    Chart chart = LogarithmicChart(ChartType::Line2D, {1, 20, 4000});
    chart.Plot.Axis(AxisId::SecondaryY).AxisScale.Hide = false;
    const Scene scene = LaidOut(chart);
    EXPECT_EQ(LabelsOf(scene, AxisId::SecondaryY), LabelsOf(scene, AxisId::Y));
}

} // namespace
} // namespace QmChart6

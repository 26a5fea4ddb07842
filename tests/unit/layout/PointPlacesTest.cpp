#include "base/Units.h"
#include "unit/layout/LayoutSupport.h"

#include <gtest/gtest.h>

#include <cmath>

namespace QmChart6 {
namespace {

Chart Sloped(ChartType type, int rows, int columns = 1) {
    Chart chart = Samples::ChartOf(rows, columns, [](int row, int column) { return 10.0 * column + row; });
    chart.SetChartType(type);
    return chart;
}

TEST(PointOfPart, AMarkOfItsOwnTellsItsPoint) {
    const Chart chart = Sloped(ChartType::Bar2D, 4, 2);
    const LaidOutChart laidOut = LaidOutWhole(chart);
    EXPECT_EQ(laidOut.places.Of({PartCode::Series, 2, 3}, {0, 0}), (DataPointHit{2, 3}));
    EXPECT_EQ(laidOut.places.Of({PartCode::PointLabel, 1, 4}, {0, 0}), (DataPointHit{1, 4}));
}

TEST(PointOfPart, OtherPartsAndPointsOutsideTheDataTellNone) {
    const Chart chart = Sloped(ChartType::Bar2D, 4, 2);
    const LaidOutChart laidOut = LaidOutWhole(chart);
    EXPECT_EQ(laidOut.places.Of({PartCode::Plot}, {100, 100}), std::nullopt);
    EXPECT_EQ(laidOut.places.Of({PartCode::Legend, 1}, {100, 100}), std::nullopt);
    EXPECT_EQ(laidOut.places.Of({PartCode::Series, 3, 1}, {100, 100}), std::nullopt);
    EXPECT_EQ(laidOut.places.Of({PartCode::Series, 1, 5}, {100, 100}), std::nullopt);
}

TEST(PointOfPart, ALineTellsTheNearestCategory) {
    const Chart chart = Sloped(ChartType::Line2D, 10);
    const LaidOutChart laidOut = LaidOutWhole(chart);
    const Box plot = BoxOfPlot(laidOut.scene);
    const double slot = plot.Width() / 10;
    for (int category = 1; category <= 10; ++category) {
        const double middle = plot.left + (category - 0.5) * slot;
        EXPECT_EQ(laidOut.places.Of({PartCode::Series, 1}, {middle + 0.4 * slot, 100}),
                  (DataPointHit{1, category}));
        EXPECT_EQ(laidOut.places.Of({PartCode::Series, 1}, {middle - 0.4 * slot, 100}),
                  (DataPointHit{1, category}));
    }
}

TEST(PointOfPart, AnAreaStandsOnTheEndsOfItsAxis) {
    const Chart chart = Sloped(ChartType::Area2D, 11);
    const LaidOutChart laidOut = LaidOutWhole(chart);
    const Box plot = BoxOfPlot(laidOut.scene);
    const double slot = plot.Width() / 10;
    EXPECT_EQ(laidOut.places.Of({PartCode::Series, 1}, {plot.left + 0.4 * slot, 100}), (DataPointHit{1, 1}));
    EXPECT_EQ(laidOut.places.Of({PartCode::Series, 1}, {plot.left + 0.6 * slot, 100}), (DataPointHit{1, 2}));
    EXPECT_EQ(laidOut.places.Of({PartCode::Series, 1}, {plot.right, 100}), (DataPointHit{1, 11}));
}

TEST(PointOfPart, AGapTellsTheNearestValueAndNoValueNone) {
    Chart chart = Sloped(ChartType::Line2D, 10);
    chart.DataGrid.SetValue(5, 1, Samples::Missing());
    chart.DataGrid.SetValue(6, 1, Samples::Missing());
    const LaidOutChart laidOut = LaidOutWhole(chart);
    const Box plot = BoxOfPlot(laidOut.scene);
    EXPECT_EQ(laidOut.places.Of({PartCode::Series, 1}, {plot.left + 0.44 * plot.Width(), 100}),
              (DataPointHit{1, 4}));
    for (int row = 1; row <= 10; ++row) chart.DataGrid.SetValue(row, 1, Samples::Missing());
    EXPECT_EQ(LaidOutWhole(chart).places.Of({PartCode::Series, 1}, plot.Center()), std::nullopt);
}

TEST(PointOfPart, ADenseLineTellsItsCategoryWithinAPixel) {
    constexpr int rows = 20000;
    const Chart chart = Sloped(ChartType::Line2D, rows);
    const LaidOutChart laidOut = LaidOutWhole(chart);
    const Box plot = BoxOfPlot(laidOut.scene);
    const auto hit = laidOut.places.Of({PartCode::Series, 1}, {plot.left + 0.25 * plot.Width(), 100});
    ASSERT_TRUE(hit.has_value());
    EXPECT_NEAR(hit->category, rows / 4, rows / plot.Width());
}

TEST(PlaceOfPoint, AMissingValueHasNoPlace) {
    Chart chart = Sloped(ChartType::Bar2D, 4);
    chart.DataGrid.SetValue(2, 1, Samples::Missing());
    const LaidOutChart laidOut = LaidOutWhole(chart);
    EXPECT_EQ(laidOut.places.At({1, 2}), std::nullopt);
    EXPECT_EQ(laidOut.places.At({1, 9}), std::nullopt);
    EXPECT_EQ(laidOut.places.At({2, 1}), std::nullopt);
    EXPECT_TRUE(laidOut.places.At({1, 3}).has_value());
}

TEST(PlaceOfPoint, OnASlopeHigherValuesStandHigher) {
    for (const ChartType type : {ChartType::Line2D, ChartType::Area2D, ChartType::Step2D}) {
        const Chart chart = Sloped(type, 12);
        const LaidOutChart laidOut = LaidOutWhole(chart);
        for (int category = 1; category < 12; ++category) {
            const auto here = laidOut.places.At({1, category});
            const auto next = laidOut.places.At({1, category + 1});
            ASSERT_TRUE(here && next) << static_cast<int>(type) << ' ' << category;
            EXPECT_LT(here->x, next->x);
            EXPECT_GT(here->y, next->y) << static_cast<int>(type) << ' ' << category;
        }
    }
}

TEST(PlaceOfPoint, StatisticsLinesDoNotMoveIt) {
    Chart chart = Sloped(ChartType::Line2D, 12);
    const auto before = LaidOutWhole(chart).places.At({1, 12});
    chart.Plot.SeriesCollection(1).StatLine.Flag = StatMinimum | StatMaximum | StatMean;
    EXPECT_EQ(LaidOutWhole(chart).places.At({1, 12}), before);
}

/// In every sample: the place of a point, pointed at, tells the point.
class EveryPoint : public testing::TestWithParam<Samples::Sample> {};

TEST_P(EveryPoint, IsFoundAtItsPlace) {
    const Samples::Sample& sample = GetParam();
    const Chart chart = sample.make();
    const LaidOutChart laidOut =
        LaidOutWhole(chart, {sample.width * PointsPerPixel, sample.height * PointsPerPixel});
    // More points than pixels share their places with others.
    const bool isDense = chart.CategoryCount() > laidOut.scene.size.width / 4;
    if (chart.CategoryCount() == 0 || sample.name == "all-missing" || sample.name == "tiny")
        GTEST_SKIP() << "shows no points";
    int found = 0;
    for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series) {
        for (int category = 1; category <= std::min(200, chart.CategoryCount()); ++category) {
            const std::optional<Point> place = laidOut.places.At({series, category});
            if (!place) continue;
            ++found;
            const std::vector<std::size_t> own = Find(laidOut.scene, {PartCode::Series, series, category});
            const Part part{PartCode::Series, series, own.empty() ? 0 : category};
            const auto hit = laidOut.places.Of(part, *place);
            ASSERT_TRUE(hit.has_value()) << series << ' ' << category;
            EXPECT_EQ(hit->series, series);
            if (!isDense) {
                EXPECT_EQ(hit->category, category) << "series " << series;
            }
        }
    }
    EXPECT_GT(found, 0);
}

INSTANTIATE_TEST_SUITE_P(Samples, EveryPoint, testing::ValuesIn(Samples::All()), Samples::TestName());

} // namespace
} // namespace QmChart6

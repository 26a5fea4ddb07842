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

TEST(Legend, IsNotShownForOneSeries) {
    EXPECT_TRUE(TextsOf(LaidOut(ChartOf(3, 1, Ramp)), PartCode::Legend).empty());
}

} // namespace
} // namespace QmChart6

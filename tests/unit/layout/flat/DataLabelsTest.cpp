#include "unit/layout/LayoutSupport.h"

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

using Samples::ChartOf;

TEST(DataLabels, AreDroppedAndToldWhereTheyWouldCoverAnother) {
    Chart chart = ChartOf(200, 1, [](int, int) { return 5.0; });
    chart.SetChartType(ChartType::Line2D);
    DataPointLabel& label = chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).DataPointLabel;
    label.Component = LabelShowsValue | LabelShowsSeriesName;
    label.LocationType = LabelLocation::AbovePoint;
    const Scene scene = LaidOut(chart);
    EXPECT_FALSE(TextsOf(scene, PartCode::PointLabel).empty());
    EXPECT_EQ(scene.warnings.size(), 1);
}

TEST(DataLabels, ShowNameValueAndPercent) {
    Chart chart = ChartOf(1, 2, [](int, int column) { return column == 1 ? 1.0 : 3.0; });
    DataPointLabel& label = chart.Plot.SeriesCollection(2).DataPoints.Item(DataPoints::All).DataPointLabel;
    label.Component = LabelShowsValue | LabelShowsPercent | LabelShowsSeriesName;
    label.LocationType = LabelLocation::Center;
    EXPECT_EQ(TextsOf(LaidOut(chart), PartCode::PointLabel)[0].text, QStringLiteral("Series 2; 3; 75%"));
}

} // namespace
} // namespace QmChart6

#include "unit/layout/LayoutSupport.h"

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

/// A pie whose labels tell the names of its slices and their percent.
Chart Named(LabelLocation location) {
    Chart chart = Samples::ChartOf(1, 6, [](int, int column) { return 10.0 + column; });
    chart.SetChartType(ChartType::Pie2D);
    chart.Title.Text = QStringLiteral("Shares");
    for (int series = 1; series <= 6; ++series) {
        chart.DataGrid.SetColumnLabel(series, QStringLiteral("Vegetables%1").arg(series));
        DataPointLabel& label =
            chart.Plot.SeriesCollection(series).DataPoints.Item(DataPoints::All).DataPointLabel;
        label.Component = LabelShowsSeriesName | LabelShowsPercent;
        label.LocationType = location;
    }
    return chart;
}

double DiameterIn(const Scene& scene) {
    return std::get<Slice>(ShapesOf<Slice>(scene, PartCode::Series).front().geometry).box.Width();
}

TEST(PieLabels, LeaveASmallPieItsSize) {
    Chart chart = Named(LabelLocation::Outside);
    const double labelled = DiameterIn(LaidOut(chart, {150, 112.5}));
    EXPECT_GE(labelled, 35);
    chart.Plot.SubPlotLabelPosition = SubPlotLabelPosition::None;
    EXPECT_GE(DiameterIn(LaidOut(chart, {90, 67.5})), 30);
}

TEST(PieLabels, WithoutAnyTextHaveNoLineEither) {
    Chart chart = Named(LabelLocation::Outside);
    for (int series = 1; series <= 6; ++series) {
        chart.DataGrid.SetColumnLabel(series, QString());
        DataPointLabel& label =
            chart.Plot.SeriesCollection(series).DataPoints.Item(DataPoints::All).DataPointLabel;
        label.Component = LabelShowsSeriesName;
        label.LineStyle = LabelLineStyle::Bent;
    }
    EXPECT_TRUE(ShapesOf<Polyline>(LaidOut(chart), PartCode::PointLabel).empty());
}

TEST(PieLabels, AreNeverBrokenWithinAWord) {
    for (const LabelLocation location : {LabelLocation::Inside, LabelLocation::Outside})
        for (double width = 80; width <= 400; width += 10)
            for (const TextLine& line : TextsOf(LaidOut(Named(location), {width, 160}), PartCode::PointLabel))
                EXPECT_TRUE(line.text.startsWith(QStringLiteral("Vegetables")) ||
                            (line.text.endsWith(QLatin1Char('%')) && line.text.size() > 1))
                    << line.text.toStdString() << " at " << width;
}

} // namespace
} // namespace QmChart6

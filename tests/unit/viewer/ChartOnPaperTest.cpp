#include "viewer/ChartOnPaper.h"

#include "support/Raises.h"

using namespace QmChart6;

TEST(PageFactor, IsTheMeanOfThePageInPixelsOverTheWindowsWidth) {
    // 10 and 20 units are 24 and 48 pixels.
    EXPECT_DOUBLE_EQ(PageFactor(10, 20, 36), 1);
    EXPECT_DOUBLE_EQ(PageFactor(10, 20, 72), 0.5);
    EXPECT_DOUBLE_EQ(PageFactor(10, 20, 12), 3);
}

TEST(PageFactor, RoundsEveryNumberToTheNearestWholeOneHalvesToTheEvenOne) {
    EXPECT_DOUBLE_EQ(PageFactor(0.625, 0, 1), 1);     // 1.5 becomes 2
    EXPECT_DOUBLE_EQ(PageFactor(2.5 / 2.4, 0, 1), 1); // 2.5 becomes 2
    EXPECT_DOUBLE_EQ(PageFactor(10, 20, 2.5), 18);
    EXPECT_DOUBLE_EQ(PageFactor(10, 20, 3.5), 9);
}

TEST(PageFactor, Raises6WhereANumberIsTooLarge) {
    EXPECT_RAISES(6, PageFactor(1e9, 1, 100));
    EXPECT_RAISES(6, PageFactor(1, 1e9, 100));
    EXPECT_RAISES(6, PageFactor(8e8, 8e8, 100));
    EXPECT_RAISES(6, PageFactor(1, 1, 2e9));
    EXPECT_RAISES(6, PageFactor(1, 1, 1e300));
    EXPECT_RAISES(6, PageFactor(1, 1, 0));
}

TEST(ChartOnPaper, HasAWhiteGroundAndNoFrameAndIsTheSameOtherwise) {
    Chart chart;
    chart.SetGridSize(2, 2);
    Chart expected = chart;
    chart.Backdrop.Frame.Style = FrameStyle::ThickOuter;
    chart.Backdrop.Fill.Brush.FillColor = {200, 220, 255};
    chart.Backdrop.Fill.Brush.Style = BrushStyle::Hatch;
    expected.Backdrop.Frame.Style = FrameStyle::None;
    expected.Backdrop.Fill.Brush.FillColor = {255, 255, 255};
    EXPECT_EQ(ChartOnPaper(chart, 1), expected);
}

TEST(ChartOnPaper, EveryFontGrows) {
    Chart chart;
    chart.SetGridSize(4, 2);
    chart.Plot.SeriesCollection(2).DataPoints.Item(3).DataPointLabel.VtFont.Size = 20;
    const Chart page = ChartOnPaper(chart, 2);
    EXPECT_EQ(page.Title.VtFont.Size, 2 * chart.Title.VtFont.Size);
    EXPECT_EQ(page.Footnote.VtFont.Size, 2 * chart.Footnote.VtFont.Size);
    EXPECT_EQ(page.Legend.VtFont.Size, 2 * chart.Legend.VtFont.Size);
    for (int axis = 0; axis <= 3; ++axis) {
        EXPECT_EQ(page.Plot.Axis(axis).AxisTitle.VtFont.Size,
                  2 * chart.Plot.Axis(axis).AxisTitle.VtFont.Size);
        EXPECT_EQ(page.Plot.Axis(axis).Labels.Item(1).VtFont.Size,
                  2 * chart.Plot.Axis(axis).Labels.Item(1).VtFont.Size);
    }
    const auto sizeOf = [](const Chart& of, int series, int point) {
        return of.Plot.SeriesCollection(series).DataPoints.Item(point).DataPointLabel.VtFont.Size;
    };
    for (const int series : {1, 2})
        EXPECT_EQ(sizeOf(page, series, DataPoints::All), 2 * sizeOf(chart, series, DataPoints::All));
    EXPECT_EQ(sizeOf(page, 2, 3), 40);
    EXPECT_EQ(sizeOf(page, 2, 4), 2 * sizeOf(chart, 2, 4));
    EXPECT_FALSE(page.Plot.SeriesCollection(1).DataPoints.HasOwn());
}

TEST(ChartOnPaper, PlacesOfOnesOwnGrowToo) {
    Chart chart;
    chart.Title.Location.Rect = {{10, 20}, {30, 40}};
    const CoordinateRect expected{{15, 30}, {45, 60}};
    EXPECT_EQ(ChartOnPaper(chart, 1.5).Title.Location.Rect, expected);
}

TEST(ChartOnPaper, AChartWithoutSeriesGrowsAsWell) {
    const Chart chart;
    EXPECT_EQ(ChartOnPaper(chart, 3).Title.VtFont.Size, 3 * chart.Title.VtFont.Size);
}

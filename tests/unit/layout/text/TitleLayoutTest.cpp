#include "unit/layout/LayoutSupport.h"

#include "chartcontrol/layout/text/TextBlock.h"

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

using Samples::ChartOf;

double Ramp(int row, int column) {
    return 10.0 * row + column;
}

TEST(Titles, LongOnesWrap) {
    const Scene scene = LaidOut(Samples::Named("bar-long-title").make(), {360, 270});
    EXPECT_GE(TextsOf(scene, PartCode::Title).size(), 2U);
}

TEST(Titles, TenThousandLettersAreElided) {
    Chart chart = ChartOf(3, 1, Ramp);
    chart.Title.Text = QString(10000, QLatin1Char('m'));
    const auto lines = TextsOf(LaidOut(chart), PartCode::Title);
    ASSERT_FALSE(lines.empty());
    EXPECT_LE(lines.size(), 4U);
    EXPECT_TRUE(lines.back().text.endsWith(QChar(0x2026)));
}

TEST(Titles, AnEmptyOneTakesNoRoom) {
    Chart chart = ChartOf(3, 1, Ramp);
    const double without = BoxOfPlot(LaidOut(chart)).top;
    chart.Title.Text = QStringLiteral("Title");
    EXPECT_GT(BoxOfPlot(LaidOut(chart)).top, without);
}

TEST(Titles, ACustomPlaceTakesNoRoomAndIsKept) {
    Chart chart = ChartOf(3, 1, Ramp);
    const Box without = BoxOfPlot(LaidOut(chart));
    chart.Title.Text = QStringLiteral("Title");
    chart.Title.Location.LocationType = LocationType::Custom;
    chart.Title.Location.Rect = {{100, 50}, {200, 90}};
    const Scene scene = LaidOut(chart);
    EXPECT_EQ(BoxOfPlot(scene), without);
    EXPECT_DOUBLE_EQ(TextsOf(scene, PartCode::Title)[0].origin.x, 150);
}

TEST(Titles, ACustomPlaceAtASideIsKeptClear) {
    Chart chart = ChartOf(3, 1, Ramp);
    chart.Title.Text = QStringLiteral("Title");
    chart.Title.Location.LocationType = LocationType::Custom;
    const Size size = LaidOut(chart).size;
    const double width = size.width;
    const double height = size.height;
    for (const CoordinateRect& rect : {CoordinateRect{{100, 4}, {200, 24}}, CoordinateRect{{2, 60}, {40, 80}},
                                       CoordinateRect{{100, height - 24}, {200, height - 4}},
                                       CoordinateRect{{width - 40, 60}, {width - 2, 80}}}) {
        chart.Title.Location.Rect = rect;
        const Box plot = BoxOfPlot(LaidOut(chart));
        EXPECT_TRUE(rect.Max.Y <= plot.top || rect.Min.Y >= plot.bottom || rect.Max.X <= plot.left ||
                    rect.Min.X >= plot.right)
            << rect.Min.X << ' ' << rect.Min.Y;
    }
}

TEST(Titles, ControlCharactersAreNoMoreThanBlanks) {
    Chart chart = ChartOf(3, 1, Ramp);
    chart.Title.Text = QStringLiteral("one\ttwo\r\nthree\x01");
    const auto lines = TextsOf(LaidOut(chart), PartCode::Title);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].text, QStringLiteral("one two"));
    EXPECT_EQ(lines[1].text, QStringLiteral("three"));
}

} // namespace
} // namespace QmChart6

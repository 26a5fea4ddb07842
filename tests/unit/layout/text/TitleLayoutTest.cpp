#include "unit/layout/LayoutSupport.h"

#include "chartcontrol/layout/text/TextBlock.h"
#include "chartcontrol/scene/HitTest.h"

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

namespace {

constexpr CoordinateRect AtTheTop{{160, 10}, {200, 22}}; // its middle is at half the chart's width

Chart WithPlacedTitle(const char* text, const CoordinateRect& rect,
                      Orientation orientation = Orientation::Horizontal) {
    Chart chart = ChartOf(3, 1, Ramp);
    chart.Title.Text = QLatin1String(text);
    chart.Title.TextLayout.Orientation = orientation;
    chart.Title.Location = {LocationType::Custom, rect, {360, 270}};
    return chart;
}

Box BoxOfTitle(const Scene& scene) {
    Box box = Box::Nothing();
    for (const Shape& shape : scene.shapes)
        if (shape.part.code == PartCode::Title) box.Include(shape.bounds);
    return box;
}

QString TextOfTitle(const Scene& scene) {
    QStringList lines;
    for (const TextLine& line : TextsOf(scene, PartCode::Title)) lines.append(line.text);
    return lines.join(u' ');
}

void ExpectWithin(const Box& box, const Size& size) {
    EXPECT_GE(box.left, -0.01);
    EXPECT_GE(box.top, -0.01);
    EXPECT_LE(box.right, size.width + 0.01);
    EXPECT_LE(box.bottom, size.height + 0.01);
}

constexpr const char* LongTitle =
    "Turnover of all the regions in the north and in the south since the year of foundation";

} // namespace

TEST(Titles, APlacedOneThatBecomesLongerWrapsInTheChartsWidthRoundItsMiddle) {
    const Scene scene = LaidOut(WithPlacedTitle(LongTitle, AtTheTop), {360, 270});
    EXPECT_EQ(TextOfTitle(scene), QLatin1String(LongTitle));
    EXPECT_GE(TextsOf(scene, PartCode::Title).size(), 2U);
    const Box box = BoxOfTitle(scene);
    EXPECT_NEAR(box.Center().x, 180, 1);
    ExpectWithin(box, scene.size);
    EXPECT_GE(BoxOfPlot(scene).top, box.bottom);
}

TEST(Titles, APlacedOneStandsAtTheSameSharesOfEveryChart) {
    for (const Size size : {Size{200, 150}, Size{720, 300}, Size{160, 500}}) {
        const Scene scene = LaidOut(WithPlacedTitle("Turnover", {{80, 130}, {100, 140}}), size);
        const Box box = BoxOfTitle(scene);
        EXPECT_NEAR(box.Center().x, size.width / 4, 1) << size.width;
        EXPECT_NEAR(box.Center().y, size.height / 2, 1) << size.width;
    }
}

TEST(Titles, APlacedOneMovesInWhereItWouldLeaveTheChart) {
    for (const CoordinateRect& rect : {CoordinateRect{{0, 0}, {4, 4}}, CoordinateRect{{356, 266}, {360, 270}},
                                       CoordinateRect{{-50, 400}, {-40, 420}}})
        for (const Orientation orientation :
             {Orientation::Horizontal, Orientation::Vertical, Orientation::Up}) {
            const Scene scene = LaidOut(WithPlacedTitle("Turnover", rect, orientation), {360, 270});
            ASSERT_FALSE(TextsOf(scene, PartCode::Title).empty());
            ExpectWithin(BoxOfTitle(scene), scene.size);
        }
}

TEST(Titles, APlacedOneIsAboveTheMarksAndMetByThePointer) {
    for (const ChartType type : {ChartType::Bar2D, ChartType::Area2D, ChartType::Pie2D, ChartType::Bar3D}) {
        Chart chart = WithPlacedTitle("Turnover", {{120, 100}, {240, 170}});
        chart.SetChartType(type);
        const Scene scene = LaidOut(chart, {360, 270});
        EXPECT_EQ(scene.shapes.back().part.code, PartCode::Title);
        const std::optional<std::size_t> met = Hit(scene, {180, 135});
        ASSERT_TRUE(met.has_value());
        EXPECT_EQ(scene.shapes[*met].part.code, PartCode::Title);
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

#include "LayoutSupport.h"

#include "chartcontrol/layout/CategoryLabels.h"
#include "chartcontrol/layout/TextBlock.h"

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

using Samples::ChartOf;

double Ramp(int row, int column) {
    return 10.0 * row + column;
}

CategoryLabelPlan Plan(int count, const QString& stem, double slot) {
    const StubTextMeasurer measurer;
    static const Font font;
    return PlanCategoryLabels(
        {count, [&](int category) { return stem.contains(QLatin1Char('%')) ? stem.arg(category) : stem; },
         slot, 100},
        font, measurer);
}

TEST(CategoryLabels, StayAsTheyAreWhereThereIsRoom) {
    const CategoryLabelPlan plan = Plan(12, QStringLiteral("Label %1"), 80);
    EXPECT_EQ(plan.way, CategoryLabelPlan::Way::Level);
    EXPECT_EQ(plan.stride, 1);
    EXPECT_EQ(plan.labels[0].block.lines.size(), 1U);
}

TEST(CategoryLabels, WrapBeforeTheyTurn) {
    const CategoryLabelPlan plan = Plan(12, QStringLiteral("Label number %1"), 50);
    EXPECT_EQ(plan.way, CategoryLabelPlan::Way::Level);
    EXPECT_EQ(plan.labels[0].block.lines.size(), 2U);
}

TEST(CategoryLabels, TurnWhereWordsAreLongerThanTheirSlot) {
    EXPECT_EQ(Plan(12, QStringLiteral("Alongwordindeed%1"), 30).way, CategoryLabelPlan::Way::Turned);
    EXPECT_EQ(Plan(12, QStringLiteral("Alongwordindeed%1"), 11).way, CategoryLabelPlan::Way::Upright);
}

TEST(CategoryLabels, ThinOutAtLastAndKeepTheFirst) {
    const CategoryLabelPlan plan = Plan(700, QStringLiteral("Label %1"), 1);
    EXPECT_GT(plan.stride, 1);
    EXPECT_EQ(plan.labels.front().category, 0);
    EXPECT_GE(plan.labels.size(), 5U);
}

TEST(CategoryLabels, ThinnedOnesKeepTheLastWhereAStrideMeetsIt) {
    const CategoryLabelPlan plan = Plan(40, QStringLiteral("A long category name %1"), 6);
    EXPECT_EQ(plan.labels.back().category, 39);
}

TEST(CategoryLabels, ElidedOnesKeepTheirEnds) {
    const StubTextMeasurer measurer;
    const TextBlock block = ElidedLine(QStringLiteral("A long category name 17"), {}, 60, measurer);
    EXPECT_TRUE(block.lines[0].text.startsWith(QLatin1Char('A')));
    EXPECT_TRUE(block.lines[0].text.endsWith(QStringLiteral("17")));
    EXPECT_LE(block.lines[0].width, 60);
}

TEST(CategoryLabels, WithoutTextTakeNoRoom) {
    EXPECT_EQ(Plan(5, QString(), 50).Depth(), 0);
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

TEST(Axes, AHiddenOneHasNoLabelsAndNoTitle) {
    Chart chart = ChartOf(3, 1, Ramp);
    chart.Plot.Axis(AxisId::Y).AxisTitle.Text = QStringLiteral("Value");
    chart.Plot.Axis(AxisId::Y).AxisScale.Hide = true;
    const Scene scene = LaidOut(chart);
    EXPECT_TRUE(TextsOf(scene, PartCode::AxisTitle).empty());
    for (const Shape& shape : ShapesOf<TextLine>(scene, PartCode::AxisLabel))
        EXPECT_EQ(shape.part.index1, static_cast<int>(AxisId::X));
}

TEST(Axes, TheFormatOfTheLabelsLimitsTheSteps) {
    Chart chart = ChartOf(3, 1, [](int row, int) { return row * 0.3; });
    chart.Plot.Axis(AxisId::Y).Labels.Item(1).Format = QStringLiteral("0");
    QStringList labels;
    for (const Shape& shape : ShapesOf<TextLine>(LaidOut(chart), PartCode::AxisLabel))
        if (shape.part.index1 == static_cast<int>(AxisId::Y))
            labels += std::get<TextLine>(shape.geometry).text;
    EXPECT_EQ(labels.removeDuplicates(), 0);
}

TEST(Axes, AFixedRangeClipsTheMarks) {
    Chart chart = ChartOf(3, 1, Ramp);
    chart.Plot.Axis(AxisId::Y).ValueScale = {false, 0, 15, 3};
    const Scene scene = LaidOut(chart);
    const auto bars = ShapesOf<Rectangle>(scene, PartCode::Series);
    ASSERT_EQ(scene.clips.size(), 1U);
    EXPECT_EQ(bars[0].clip, 0);
}

TEST(Axes, TheSecondOneMirrorsTheFirstUnlessASeriesUsesIt) {
    Chart chart = ChartOf(3, 2, [](int row, int column) { return column == 1 ? row * 10.0 : row * 0.1; });
    chart.Plot.Axis(AxisId::SecondaryY).AxisScale.Hide = false;
    const auto last = [](const Scene& scene, AxisId id) {
        QString text;
        for (const Shape& shape : ShapesOf<TextLine>(scene, PartCode::AxisLabel))
            if (shape.part.index1 == static_cast<int>(id)) text = std::get<TextLine>(shape.geometry).text;
        return text;
    };
    Scene scene = LaidOut(chart);
    EXPECT_EQ(last(scene, AxisId::SecondaryY), last(scene, AxisId::Y));
    chart.Plot.SeriesCollection(2).SecondaryAxis = true;
    scene = LaidOut(chart);
    EXPECT_NE(last(scene, AxisId::SecondaryY), last(scene, AxisId::Y));
}

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

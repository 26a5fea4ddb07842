#include "unit/layout/LayoutSupport.h"

#include <gtest/gtest.h>

namespace QmChart6 {
namespace {

using Samples::ChartOf;

double Ramp(int row, int column) {
    return 10.0 * row + column;
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

TEST(Axes, CountsHaveWholeTicks) {
    const auto labels = [](double most) {
        QStringList texts;
        const Chart chart = ChartOf(3, 1, [&](int row, int) { return row == 2 ? most : 0.0; });
        for (const Shape& shape : ShapesOf<TextLine>(LaidOut(chart), PartCode::AxisLabel))
            if (shape.part.index1 == static_cast<int>(AxisId::Y))
                texts += std::get<TextLine>(shape.geometry).text;
        return texts.join(QLatin1Char(' '));
    };
    EXPECT_EQ(labels(1), QStringLiteral("0 1"));
    EXPECT_EQ(labels(2), QStringLiteral("0 1 2"));
    EXPECT_TRUE(labels(1.5).contains(QLatin1Char('.')));
}

QStringList TitlesOf(const Scene& scene) {
    QStringList titles;
    for (const TextLine& title : TextsOf(scene, PartCode::AxisTitle)) titles += title.text;
    return titles;
}

TEST(Axes, TellTheUnitOfTheirLabelsInTheTitle) {
    Chart chart = ChartOf(3, 1, [](int row, int) { return row * 1e9; });
    chart.Plot.Axis(AxisId::Y).AxisTitle.Text = QStringLiteral("Sales");
    EXPECT_EQ(TitlesOf(LaidOut(chart)), QStringList{QStringLiteral("Sales (billion)")});
    chart.Plot.Axis(AxisId::Y).Labels.Item(1).Format = QStringLiteral("0");
    EXPECT_EQ(TitlesOf(LaidOut(chart)), QStringList{QStringLiteral("Sales")});
}

TEST(Axes, TellTheUnitAboveTheLabelsWhereThereIsNoTitle) {
    const Chart chart = ChartOf(3, 1, [](int row, int) { return row * 1e9; });
    const Scene scene = LaidOut(chart);
    const auto units = ShapesOf<TextLine>(scene, PartCode::AxisTitle);
    ASSERT_EQ(units.size(), 1U);
    EXPECT_EQ(std::get<TextLine>(units[0].geometry).text, QStringLiteral("billion"));
    EXPECT_GE(units[0].bounds.top, 0);
    for (const Shape& label : ShapesOf<TextLine>(scene, PartCode::AxisLabel))
        EXPECT_LE(units[0].bounds.bottom, label.bounds.top);
}

TEST(Axes, TellTheUnitOfPairsBelowTheLabels) {
    Chart chart = ChartOf(3, 2, [](int row, int column) { return column == 1 ? row * 1e7 : row; });
    chart.SetChartType(ChartType::XY2D);
    EXPECT_EQ(TitlesOf(LaidOut(chart)), QStringList{QStringLiteral("million")});
    chart.Plot.Axis(AxisId::X).AxisTitle.Text = QStringLiteral("Distance");
    EXPECT_EQ(TitlesOf(LaidOut(chart)), QStringList{QStringLiteral("Distance (million)")});
}

TEST(Axes, AFixedRangeWithMoreTicksThanThereIsRoomForLabelsEvenly) {
    Chart chart = ChartOf(3, 1, Ramp);
    chart.Plot.Axis(AxisId::Y).ValueScale = {false, -100, 100, 100};
    const Scene scene = LaidOut(chart);
    std::vector<double> places;
    bool zero = false;
    for (const Shape& shape : ShapesOf<TextLine>(scene, PartCode::AxisLabel)) {
        if (shape.part.index1 != static_cast<int>(AxisId::Y)) continue;
        places.push_back(std::get<TextLine>(shape.geometry).origin.y);
        zero = zero || std::get<TextLine>(shape.geometry).text == QStringLiteral("0");
    }
    ASSERT_GT(places.size(), 3U);
    EXPECT_TRUE(zero);
    for (std::size_t i = 2; i < places.size(); ++i)
        EXPECT_NEAR(places[i] - places[i - 1], places[1] - places[0], 1e-6);
    EXPECT_GT(places[0] - places[1], 9);
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

} // namespace
} // namespace QmChart6

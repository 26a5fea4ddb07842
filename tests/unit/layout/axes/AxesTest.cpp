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

#include "chart/DefaultLook.h"

#include "chart/ValueLabelFormat.h"

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

Chart ChartOf(int rows, int columns) {
    Chart chart;
    chart.SetGridSize(rows, columns);
    return chart;
}

void NameEveryFont(Chart& chart, const QString& name) {
    chart.Title.VtFont.Name = name;
    chart.Legend.VtFont.Name = name;
    for (int id = 0; id <= 3; ++id) {
        chart.Plot.Axis(id).AxisTitle.VtFont.Name = name;
        chart.Plot.Axis(id).Labels.Item(1).VtFont.Name = name;
    }
    for (Series& series : chart.Plot.SeriesCollection)
        series.DataPoints.Item(DataPoints::All).DataPointLabel.VtFont.Name = name;
}

} // namespace

TEST(ApplyDefaultLook, OneDataColumnLeavesTheLegendAsItIs) {
    for (const bool shown : {false, true}) {
        Chart chart = ChartOf(3, 1);
        chart.ShowLegend = shown;
        ApplyDefaultLook(chart);
        EXPECT_EQ(chart.ShowLegend, shown);
    }
}

TEST(ApplyDefaultLook, TwoDataColumnsOrMoreSwitchTheLegendOn) {
    Chart chart = ChartOf(3, 2);
    chart.ShowLegend = false;
    ApplyDefaultLook(chart);
    EXPECT_TRUE(chart.ShowLegend);
}

TEST(ApplyDefaultLook, ALegendThatWasSwitchedOnStaysWhenOneSeriesComesNext) {
    Chart chart = ChartOf(3, 2);
    ApplyDefaultLook(chart);
    chart.SetGridSize(3, 1);
    ApplyDefaultLook(chart);
    EXPECT_TRUE(chart.ShowLegend);
}

TEST(ApplyDefaultLook, EveryTextIsInArial) {
    Chart chart = ChartOf(3, 3);
    NameEveryFont(chart, QStringLiteral("Other"));
    ApplyDefaultLook(chart);
    Chart expected = chart;
    NameEveryFont(expected, QStringLiteral("Arial"));
    EXPECT_EQ(chart, expected);
}

TEST(ApplyDefaultLook, KeepsSizesStylesAndColoursOfTexts) {
    Chart chart = ChartOf(3, 3);
    chart.Title.VtFont.Size = 33;
    chart.Title.VtFont.Style = FontItalic;
    chart.Plot.Axis(AxisId::X).AxisTitle.VtFont.VtColor = {1, 2, 3};
    ApplyDefaultLook(chart);
    EXPECT_EQ(chart.Title.VtFont.Size, 33);
    EXPECT_EQ(chart.Title.VtFont.Style, FontItalic);
    EXPECT_EQ(chart.Plot.Axis(AxisId::X).AxisTitle.VtFont.VtColor, (Colour{1, 2, 3}));
}

TEST(ApplyDefaultLook, TheSecondaryAxisIsHiddenAndBothValueAxesHaveDottedGridLines) {
    Chart chart = ChartOf(3, 3);
    chart.Plot.Axis(AxisId::SecondaryY).AxisScale.Hide = false;
    ApplyDefaultLook(chart);
    EXPECT_TRUE(chart.Plot.Axis(AxisId::SecondaryY).AxisScale.Hide);
    EXPECT_FALSE(chart.Plot.Axis(AxisId::Y).AxisScale.Hide);
    for (const AxisId id : {AxisId::Y, AxisId::SecondaryY})
        EXPECT_EQ(chart.Plot.Axis(id).AxisGrid.MajorPen.Style, PenStyle::Dotted);
    EXPECT_EQ(chart.Plot.Axis(AxisId::Y).AxisTitle.TextLayout.Orientation, Orientation::Up);
    EXPECT_EQ(chart.Plot.Axis(AxisId::SecondaryY).AxisTitle.TextLayout.Orientation, Orientation::Down);
}

TEST(ApplyDefaultLook, LeavesGridScaleAndFormatOfCategoryAndDepthAxes) {
    Chart chart = ChartOf(3, 3);
    for (const AxisId id : {AxisId::X, AxisId::Z}) {
        chart.Plot.Axis(id).AxisGrid.MajorPen.Style = PenStyle::Dashed;
        chart.Plot.Axis(id).AxisScale.Hide = true;
        chart.Plot.Axis(id).Labels.Item(1).Format = QStringLiteral("0.0");
    }
    ApplyDefaultLook(chart);
    for (const AxisId id : {AxisId::X, AxisId::Z}) {
        EXPECT_EQ(chart.Plot.Axis(id).AxisGrid.MajorPen.Style, PenStyle::Dashed);
        EXPECT_TRUE(chart.Plot.Axis(id).AxisScale.Hide);
        EXPECT_EQ(chart.Plot.Axis(id).Labels.Item(1).Format, "0.0");
    }
}

TEST(ApplyDefaultLook, ValueAxesAndDataLabelsTakeTheValueLabelFormat) {
    ComputeValueLabelFormat(Array<double>::Table(1, 1, {1.5}, 1, 1), 1, 1);
    Chart chart = ChartOf(3, 2);
    ApplyDefaultLook(chart);
    EXPECT_EQ(chart.Plot.Axis(AxisId::Y).Labels.Item(1).Format, "0.00");
    EXPECT_EQ(chart.Plot.Axis(AxisId::SecondaryY).Labels.Item(1).Format, "0.00");
    for (const Series& series : chart.Plot.SeriesCollection)
        EXPECT_EQ(series.DataPoints.Item(DataPoints::All).DataPointLabel.ValueFormat, "0.00");
}

TEST(ApplyDefaultLook, TheGroundIsWhite) {
    Chart chart = ChartOf(3, 2);
    chart.Backdrop.Fill.Brush.FillColor = {1, 2, 3};
    ApplyDefaultLook(chart);
    EXPECT_EQ(chart.Backdrop.Fill.Brush.FillColor, (Colour{255, 255, 255}));
}

TEST(ApplyDefaultLook, EachSeriesHasItsDefaultColour) {
    Chart chart = ChartOf(1, 40);
    ApplyDefaultLook(chart);
    for (int i = 1; i <= 40; ++i)
        EXPECT_EQ(chart.Plot.SeriesCollection(i).DataPoints.Item(DataPoints::All).Brush.FillColor,
                  SeriesDefaultColor(i));
}

TEST(ApplyDefaultLook, AnEmptyChartHasNoSeriesToColour) {
    Chart chart;
    ApplyDefaultLook(chart);
    EXPECT_EQ(chart.Plot.SeriesCollection.Count(), 0);
    EXPECT_FALSE(chart.ShowLegend);
}

TEST(SeriesDefaultColor, FirstThreeAreRedGreenBlueAndThe31stIsDarkRed) {
    EXPECT_EQ(SeriesDefaultColor(1), (Colour{200, 0, 0}));
    EXPECT_EQ(SeriesDefaultColor(2), (Colour{0, 200, 0}));
    EXPECT_EQ(SeriesDefaultColor(3), (Colour{0, 0, 200}));
    EXPECT_EQ(SeriesDefaultColor(31), (Colour{160, 0, 0}));
}

TEST(SeriesDefaultColor, FollowsTheTable) {
    const std::pair<int, Colour> rows[] = {
        {4, {200, 200, 0}},    {5, {0, 200, 200}},    {6, {200, 0, 200}},    {7, {200, 160, 0}},
        {8, {0, 200, 160}},    {9, {160, 0, 200}},    {10, {200, 160, 120}}, {11, {120, 200, 160}},
        {12, {160, 120, 200}}, {13, {200, 160, 160}}, {16, {200, 0, 160}},   {19, {200, 120, 160}},
        {22, {200, 120, 0}},   {25, {200, 120, 120}}, {28, {200, 0, 120}},   {30, {0, 120, 200}},
        {32, {0, 160, 0}}};
    for (const auto& [i, colour] : rows) EXPECT_EQ(SeriesDefaultColor(i), colour) << "series " << i;
}

TEST(SeriesDefaultColor, StartsOverAfterFourLevels) {
    for (int i = 1; i <= 120; ++i) EXPECT_EQ(SeriesDefaultColor(i + 120), SeriesDefaultColor(i)) << i;
    EXPECT_EQ(SeriesDefaultColor(91), (Colour{80, 0, 0}));
    EXPECT_EQ(SeriesDefaultColor(97), (Colour{80, 200, 0})); // a level below the lowest is the highest
}

TEST(SeriesDefaultColor, HasStepsOf40UpTo200) {
    for (int i = 1; i <= 32767; ++i) {
        const Colour colour = SeriesDefaultColor(i);
        for (const int component : {colour.Red, colour.Green, colour.Blue})
            ASSERT_TRUE(component % 40 == 0 && component <= 200) << i;
        ASSERT_NE(colour, Colour{}) << i;
    }
}

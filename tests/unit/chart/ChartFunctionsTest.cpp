#include "chart/ChartFunctions.h"
#include "chart/DefaultLook.h"
#include "chart/ValueLabelFormat.h"
#include "chartcontrol/model/ChartKinds.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

#include <vector>

namespace QmChart6 {
namespace {

Chart ChartOf(int rows, int columns, ChartType type = ChartType::Bar2D) {
    Chart chart;
    chart.SetGridSize(rows, columns);
    chart.SetChartType(type);
    return chart;
}

DataPointLabel& LabelOf(Chart& chart, int series) {
    return chart.Plot.SeriesCollection(series).DataPoints.Item(DataPoints::All).DataPointLabel;
}

/// Makes ValueLabelFormat "0.00", so that it can be told from its first value.
void UseDecimalFormat() {
    ComputeValueLabelFormat(Array<double>::Table(1, 1, {0.5}, 1, 1), 1, 1);
    ASSERT_EQ(ValueLabelFormat(), QStringLiteral("0.00"));
}

TEST(GridLines, EachStyleOnEachAxis) {
    Chart chart;
    for (int axis = 0; axis <= 3; ++axis)
        for (int style = 0; style <= 3; ++style) {
            SetGridLineStyle(chart, style, axis);
            EXPECT_EQ(static_cast<int>(chart.Plot.Axis(axis).AxisGrid.MajorPen.Style), style);
        }
    EXPECT_RAISES(380, SetGridLineStyle(chart, 4, 0));
    EXPECT_RAISES(5, SetGridLineStyle(chart, 1, 4));
}

TEST(AxisVisibility, IsTheBitwiseComplement) {
    Chart chart;
    SetAxisVisible(chart, True, 0);
    EXPECT_FALSE(chart.Plot.Axis(0).AxisScale.Hide);
    SetAxisVisible(chart, False, 0);
    EXPECT_TRUE(chart.Plot.Axis(0).AxisScale.Hide);
    SetAxisVisible(chart, 1, 0);
    EXPECT_TRUE(chart.Plot.Axis(0).AxisScale.Hide);
    EXPECT_RAISES(5, SetAxisVisible(chart, True, -1));
}

TEST(AxisTitles, AreShownByAnyNumberButZero) {
    Chart chart;
    SetAxisTitleVisible(chart, False, 3);
    EXPECT_FALSE(chart.Plot.Axis(3).AxisTitle.Visible);
    SetAxisTitleVisible(chart, 1, 3);
    EXPECT_TRUE(chart.Plot.Axis(3).AxisTitle.Visible);
}

TEST(Legend, OnceSetNoLongerFollowsTheData) {
    Chart chart = ChartOf(2, 3);
    SetLegendVisible(chart, False);
    EXPECT_FALSE(chart.ShowLegend);
    chart.SetGridSize(2, 5);
    EXPECT_FALSE(chart.ShowLegend);
}

TEST(Stacking, IsSwitched) {
    Chart chart = ChartOf(2, 3);
    SetStacked(chart, True);
    EXPECT_TRUE(chart.Stacking);
    SetStacked(chart, False);
    EXPECT_FALSE(chart.Stacking);
}

TEST(FullStacked, OnMakesBothValueAxesSharesOfTheRow) {
    Chart chart = ChartOf(2, 3);
    SetFullStacked(chart, True);
    for (const int axis : {1, 2}) {
        EXPECT_EQ(chart.Plot.Axis(axis).AxisScale.Type, ScaleType::Percent);
        EXPECT_EQ(chart.Plot.Axis(axis).AxisScale.PercentBasis, PercentBasis::SumOfRow);
        EXPECT_EQ(chart.Plot.Axis(axis).Labels.Item(1).Format, QStringLiteral("0%"));
    }
    EXPECT_EQ(chart.Plot.Axis(0).AxisScale.Type, ScaleType::Linear);
}

TEST(FullStacked, OffLeavesThePercentBasisAndSetsBothLabelFormats) {
    UseDecimalFormat();
    Chart chart = ChartOf(2, 3);
    SetFullStacked(chart, True);
    SetFullStacked(chart, False);
    for (const int axis : {1, 2}) {
        EXPECT_EQ(chart.Plot.Axis(axis).AxisScale.Type, ScaleType::Linear);
        EXPECT_EQ(chart.Plot.Axis(axis).AxisScale.PercentBasis, PercentBasis::SumOfRow);
        EXPECT_EQ(chart.Plot.Axis(axis).Labels.Item(1).Format, ValueLabelFormat());
    }
}

TEST(MarkersAndLines, AreSetForEverySeries) {
    Chart chart = ChartOf(2, 3);
    SetSeriesMarkers(chart, True);
    SetSeriesLines(chart, False);
    for (const Series& series : chart.Plot.SeriesCollection) {
        EXPECT_TRUE(series.SeriesMarker.Show);
        EXPECT_FALSE(series.ShowLine);
    }
}

TEST(MarkersAndLines, AChartWithNoSeriesIsLeftUnchanged) {
    Chart chart;
    const Chart before = chart;
    SetSeriesMarkers(chart, True);
    SetSeriesLines(chart, False);
    EXPECT_TRUE(chart == before);
}

TEST(Flip, WithTheValueThatTheChartHasChangesNothing) {
    Chart chart = ChartOf(3, 2);
    chart.Plot.Axis(0).AxisTitle.Text = QStringLiteral("X");
    chart.Plot.Axis(3).AxisTitle.Text = QStringLiteral("Z");
    const Chart before = chart;
    SetSeriesInRows(chart, False);
    EXPECT_TRUE(chart == before);
}

TEST(Flip, ThatReducesTheSeriesOnlySwapsTheTitles) {
    Chart chart = ChartOf(2, 5);
    chart.Plot.Axis(0).AxisTitle.Text = QStringLiteral("X");
    chart.Plot.Axis(3).AxisTitle.Text = QStringLiteral("Z");
    const Series first = chart.Plot.SeriesCollection(1);
    const Series second = chart.Plot.SeriesCollection(2);
    SetSeriesInRows(chart, True);
    EXPECT_EQ(chart.Plot.Axis(0).AxisTitle.Text, QStringLiteral("Z"));
    EXPECT_EQ(chart.Plot.Axis(3).AxisTitle.Text, QStringLiteral("X"));
    ASSERT_EQ(chart.Plot.SeriesCollection.Count(), 2);
    EXPECT_TRUE(chart.Plot.SeriesCollection(1) == first);
    EXPECT_TRUE(chart.Plot.SeriesCollection(2) == second);
}

TEST(Flip, FromTwoToFiveStylesTheAddedSeriesLikeTheLast) {
    UseDecimalFormat();
    Chart chart = ChartOf(5, 2);
    LabelOf(chart, 1).Component = LabelShowsValue | LabelShowsPercent;
    LabelOf(chart, 2).Component = LabelShowsValue | LabelShowsSeriesName;
    LabelOf(chart, 2).LocationType = LabelLocation::BelowPoint;
    LabelOf(chart, 2).LineStyle = LabelLineStyle::Bent;
    LabelOf(chart, 2).TextLayout.Orientation = Orientation::Up;
    LabelOf(chart, 2).VtFont = {QStringLiteral("Times"), 13, FontItalic, FontUnderline, {9, 9, 9}};
    const Series first = chart.Plot.SeriesCollection(1);
    SetSeriesInRows(chart, True);
    ASSERT_EQ(chart.Plot.SeriesCollection.Count(), 5);
    EXPECT_TRUE(chart.Plot.SeriesCollection(1) == first);
    for (int number = 3; number <= 5; ++number) {
        const DataPointLabel& label = LabelOf(chart, number);
        EXPECT_EQ(chart.Plot.SeriesCollection(number).DataPoints.Item(DataPoints::All).Brush.FillColor,
                  SeriesDefaultColor(number));
        EXPECT_EQ(label.Component, LabelShowsValue); // what every old series showed
        EXPECT_EQ(label.LineStyle, LabelLineStyle::Bent);
        EXPECT_EQ(label.LocationType, LabelLocation::BelowPoint);
        EXPECT_EQ(label.PercentFormat, QStringLiteral("0.0%"));
        EXPECT_EQ(label.ValueFormat, QStringLiteral("0.00"));
        EXPECT_EQ(label.TextLayout.Orientation, Orientation::Up);
        EXPECT_EQ(label.VtFont.Name, QStringLiteral("Times"));
        EXPECT_EQ(label.VtFont.Size, 13);
        EXPECT_EQ(label.VtFont.Style, FontItalic);
        EXPECT_EQ(label.VtFont.Effect, FontUnderline);
        EXPECT_NE(label.VtFont.VtColor, (Colour{9, 9, 9})); // the colour is not copied
    }
}

TEST(Flip, FromNoSeriesRaisesAndKeepsWhatWasWritten) {
    Chart chart = ChartOf(3, 0);
    EXPECT_RAISES(9, SetSeriesInRows(chart, True));
    EXPECT_TRUE(chart.Plot.DataSeriesInRow);
    // The first new series got its colour and components; there was none to take the rest from.
    const DataPoint& first = chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All);
    EXPECT_EQ(first.Brush.FillColor, SeriesDefaultColor(1));
    EXPECT_EQ(first.DataPointLabel.Component, 0);
    EXPECT_NE(chart.Plot.SeriesCollection(2).DataPoints.Item(DataPoints::All).Brush.FillColor,
              SeriesDefaultColor(2));
}

TEST(Flip, LeavesTheLegendAsItIs) {
    Chart chart = ChartOf(3, 1);
    ASSERT_FALSE(chart.ShowLegend);
    SetSeriesInRows(chart, True);
    EXPECT_EQ(chart.Plot.SeriesCollection.Count(), 3);
    EXPECT_FALSE(chart.ShowLegend);
    chart = ChartOf(1, 3);
    ASSERT_TRUE(chart.ShowLegend);
    SetSeriesInRows(chart, True);
    EXPECT_TRUE(chart.ShowLegend);
}

TEST(PieLabelPosition, IsPassedThroughUnchanged) {
    Chart chart;
    for (int position = 0; position <= 3; ++position) {
        SetPieLabelPosition(chart, position);
        EXPECT_EQ(static_cast<int>(chart.Plot.SubPlotLabelPosition), position);
    }
    EXPECT_RAISES(380, SetPieLabelPosition(chart, 4));
}

TEST(BackgroundColor, IsSplitWithRedInTheLowByte) {
    Chart chart;
    SetBackgroundColor(chart, 0x030201);
    EXPECT_EQ(chart.Backdrop.Fill.Brush.FillColor, (Colour{1, 2, 3}));
    SetBackgroundColor(chart, 16777215);
    EXPECT_EQ(chart.Backdrop.Fill.Brush.FillColor, (Colour{255, 255, 255}));
}

TEST(Projection, IsSet) {
    Chart chart;
    for (int projection = 0; projection <= 2; ++projection) {
        SetProjection(chart, projection);
        EXPECT_EQ(static_cast<int>(chart.Plot.Projection), projection);
    }
    EXPECT_RAISES(380, SetProjection(chart, 3));
}

struct Fitting {
    ChartType type;
    int before;
    int after;
};

class LabelLocations : public testing::TestWithParam<Fitting> {};

TEST_P(LabelLocations, AreFittedToTheTypeOfChart) {
    Chart chart = ChartOf(2, 2, GetParam().type);
    LabelOf(chart, 2).LocationType = ToLabelLocation(GetParam().before);
    FitDataLabelLocations(chart);
    EXPECT_EQ(static_cast<int>(LabelOf(chart, 2).LocationType), GetParam().after);
    EXPECT_EQ(LabelOf(chart, 1).LocationType, LabelLocation::None);
}

std::vector<Fitting> EveryFitting() {
    std::vector<Fitting> all;
    const auto add = [&](ChartType type, const std::vector<int>& after) {
        for (int before = 0; before <= 8; ++before)
            all.push_back({type, before, after[static_cast<std::size_t>(before)]});
    };
    add(ChartType::Pie2D, {0, 6, 5, 5, 5, 5, 6, 5, 5});
    add(ChartType::XY2D, {0, 1, 2, 3, 2, 3, 1, 7, 8});
    for (int type = 0; type <= 9; ++type) add(ToChartType(type), {0, 1, 2, 3, 4, 3, 1, 3, 3});
    return all;
}

INSTANTIATE_TEST_SUITE_P(Table, LabelLocations, testing::ValuesIn(EveryFitting()), [](const auto& fitting) {
    return "type" + std::to_string(static_cast<int>(fitting.param.type)) + "_" +
           std::to_string(fitting.param.before);
});

std::int16_t StateOf(const std::vector<int>& components, int bit) {
    Chart chart = ChartOf(1, static_cast<int>(components.size()));
    for (std::size_t i = 0; i < components.size(); ++i)
        LabelOf(chart, static_cast<int>(i) + 1).Component = components[i];
    return GetLabelComponentState(chart.Plot.SeriesCollection, bit);
}

TEST(ComponentState, IsNoneOnAChartWithNoSeries) {
    EXPECT_EQ(StateOf({}, 0), 0);
}

TEST(ComponentState, IsSomeWhereTheFirstLacksItAndTheSecondHasIt) {
    EXPECT_EQ(StateOf({0, 1}, 0), 2);
}

TEST(ComponentState, OfEveryBit) {
    for (int bit = 0; bit <= 2; ++bit) {
        const int has = 1 << bit;
        const int others = 7 - has;
        EXPECT_EQ(StateOf({others, others}, bit), 0);
        EXPECT_EQ(StateOf({has, has, 7}, bit), 1);
        EXPECT_EQ(StateOf({has, others}, bit), 2);
        EXPECT_EQ(StateOf({others, has}, bit), 2);
        EXPECT_EQ(StateOf({has, others, has}, bit), 2);
    }
}

} // namespace
} // namespace QmChart6

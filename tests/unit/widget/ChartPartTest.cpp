#include "PointingTest.h"

#include "support/Raises.h"

namespace QmChart6 {
namespace {

class ChartPartTest : public PointingTest {};

TEST_F(ChartPartTest, EachPartIsFoundAtAPlaceInsideIt) {
    EXPECT_EQ(PartAtPixels(PlaceOf({PartCode::Title})), (ChartPart{1}));
    EXPECT_EQ(PartAtPixels(PlaceOf({PartCode::Footnote})), (ChartPart{2}));
    EXPECT_EQ(PartAtPixels(PlaceOf({PartCode::Legend, 3})), (ChartPart{3}));
    EXPECT_EQ(PartAtPixels(PlaceOf({PartCode::Series, 2, 5})), (ChartPart{5, 2, 5}));
    EXPECT_EQ(PartAtPixels(PlaceOf({PartCode::AxisLabel, 0, 3})), (ChartPart{10, 0, 1, 1}));
    EXPECT_EQ(PartAtPixels(PlaceOf({PartCode::AxisLabel, 1, AnyIndex})), (ChartPart{10, 1, 1, 1}));
    EXPECT_EQ(PartAtPixels(PlaceOf({PartCode::AxisTitle, 0, AnyIndex})), (ChartPart{11, 0, 1}));
    EXPECT_EQ(PartAtPixels(PlaceOf({PartCode::AxisTitle, 1, AnyIndex})), (ChartPart{11, 1, 1}));
    EXPECT_EQ(PartAtPixels({2, 2}), (ChartPart{0}));
}

TEST_F(ChartPartTest, BetweenTheBarsIsThePlotAndOnItsEdgeTheAxis) {
    const Scene& scene = chart.CurrentScene();
    const Box plot = scene.shapes[Find(scene, {PartCode::Plot}).front()].bounds;
    EXPECT_EQ(PartAtPixels(PixelOf({plot.left + 2, plot.bottom + 0.3})).part, 9);
    // Between two grid lines at the top, above every bar.
    int found = NoPart;
    for (double y = plot.top + 1; y < plot.bottom && found != 4; y += 1)
        found = PartAtPixels(PixelOf({plot.left + 3, y})).part;
    EXPECT_EQ(found, 4);
}

TEST_F(ChartPartTest, OutsideTheControlIsNoPart) {
    EXPECT_EQ(PartAtTwips(-1, 100), ChartPart{});
    EXPECT_EQ(PartAtTwips(100, -1), ChartPart{});
    EXPECT_EQ(PartAtTwips(640 * 15, 100), ChartPart{});
    EXPECT_EQ(PartAtTwips(100, 420 * 15), ChartPart{});
    EXPECT_EQ(PartAtTwips(640 * 15 - 1, 420 * 15 - 1), (ChartPart{0}));
}

TEST_F(ChartPartTest, ALabelIsTheLabelOfItsPoint) {
    for (const char* name : {"bar-labels-above", "line-labels", "pie-one", "bar-3d-labels"}) {
        SCOPED_TRACE(name);
        chart.Model() = Samples::Named(name).make();
        chart.Refresh();
        const Scene& scene = chart.CurrentScene();
        const Part label = scene.shapes[Find(scene, {PartCode::PointLabel, AnyIndex, AnyIndex}).back()].part;
        EXPECT_EQ(PartAtPixels(PlaceOf(label)), (ChartPart{8, label.index1, label.index2}));
    }
}

TEST_F(ChartPartTest, EveryTypesMarksAreItsSeries) {
    for (const char* name :
         {"bar-4-series", "line-4-series", "area-3-series", "step-3-series", "combination", "pie-one",
          "xy-pairs", "bar-3d", "line-3d", "area-3d", "step-3d", "combination-3d"}) {
        SCOPED_TRACE(name);
        chart.Model() = Samples::Named(name).make();
        chart.Refresh();
        int met = 0;
        for (int category = 1; category <= chart.Model().CategoryCount(); ++category) {
            const auto place = chart.CurrentLayout().places.At({1, category});
            if (!place) continue;
            const ChartPart part = PartAtPixels(PixelOf(*place));
            met += part == ChartPart{5, 1, category} ? 1 : 0;
        }
        EXPECT_GT(met, 0) << "no point of series 1 is met at its place";
    }
}

TEST_F(ChartPartTest, WhatIsSelectedIsTold) {
    chart.SelectPart(11, 1, 1, 0, 0);
    ChartPart part;
    chart.GetSelectedPart(part.part, part.index1, part.index2, part.index3, part.index4);
    EXPECT_EQ(part, (ChartPart{11, 1, 1}));
    EXPECT_EQ(selected, 1);
    chart.SelectPart(11, 1, 1, 0, 0);
    EXPECT_EQ(selected, 1) << "nothing changed";
    chart.SelectPart(NoPart, 7, 7, 7, 7);
    EXPECT_EQ(chart.SelectedPart(), ChartPart{});
}

TEST_F(ChartPartTest, WhatIsNoPartIsRefusedAndTheSelectionStays) {
    chart.SelectPart(1, 0, 0, 0, 0);
    EXPECT_RAISES(380, (chart.SelectPart(12, 0, 0, 0, 0), 0));
    EXPECT_RAISES(380, (chart.SelectPart(-2, 0, 0, 0, 0), 0));
    EXPECT_RAISES(5, (chart.SelectPart(9, 4, 1, 0, 0), 0));
    EXPECT_RAISES(9, (chart.SelectPart(5, 5, 0, 0, 0), 0));
    EXPECT_RAISES(9, (chart.SelectPart(5, 0, 0, 0, 0), 0));
    EXPECT_RAISES(9, (chart.SelectPart(7, 1, 13, 0, 0), 0));
    EXPECT_EQ(chart.SelectedPart(), (ChartPart{1}));
}

TEST_F(ChartPartTest, WhatTheChartHasIsWhatMayBeSelected) {
    for (int part = -3; part <= 13; ++part)
        for (int index1 = -2; index1 <= 7; ++index1)
            for (const int index2 : {-1, 0, 1, 12, 13, 14}) {
                const ChartPart wanted{part, index1, index2};
                bool raised = false;
                try {
                    RequirePart(chart.Model(), wanted);
                } catch (const RuntimeError&) {
                    raised = true;
                }
                EXPECT_EQ(HasPart(chart.Model(), wanted), !raised) << part << ' ' << index1 << ' ' << index2;
            }
}

TEST_F(ChartPartTest, EveryPartThatIsFoundCanBeSelected) {
    for (int y = 0; y < chart.height(); y += 7)
        for (int x = 0; x < chart.width(); x += 7) {
            const ChartPart part = PartAtPixels({x, y});
            chart.SelectPart(part.part, part.index1, part.index2, part.index3, part.index4);
            ASSERT_EQ(chart.SelectedPart(), part);
        }
}

TEST_F(ChartPartTest, ASelectedSeriesGoesWithItsData) {
    chart.SelectPart(5, 4, 3, 0, 0);
    chart.Model().SetGridSize(2, 2);
    chart.Refresh();
    EXPECT_EQ(chart.SelectedPart(), ChartPart{});
    EXPECT_EQ(selected, 2);
}

} // namespace
} // namespace QmChart6

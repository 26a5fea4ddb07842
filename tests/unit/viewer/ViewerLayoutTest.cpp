#include "viewer/ViewerLayout.h"

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

constexpr ViewerMeasures Usual{.width = 11580,
                               .height = 8400,
                               .statusBarHeight = 345,
                               .controlBarTop = 0,
                               .controlBarHeight = 420,
                               .controlBarVisible = true};

} // namespace

TEST(PlaceChart, LeavesRoomForBothBars) {
    const ChartPlace place = PlaceChart(Usual);
    EXPECT_EQ(place.left, 30);
    EXPECT_EQ(place.top, 460);
    EXPECT_EQ(place.width, 11400);
    EXPECT_EQ(place.height, 8400 - 345 - 420 - 480);
}

TEST(PlaceChart, HidingTheControlBarMovesTheChartUpToTop40AndMakesItTallerByTheBarsHeight) {
    ViewerMeasures measures = Usual;
    const ChartPlace with = PlaceChart(measures);
    measures.controlBarVisible = false;
    const ChartPlace without = PlaceChart(measures);
    EXPECT_EQ(without.top, 40);
    EXPECT_EQ(without.height.value() - with.height.value(), measures.controlBarHeight);
    EXPECT_EQ(without.width, with.width);
}

TEST(PlaceChart, StartsBelowAControlBarThatStandsLower) {
    ViewerMeasures measures = Usual;
    measures.controlBarTop = 60;
    EXPECT_EQ(PlaceChart(measures).top, 60 + 420 + 40);
}

TEST(PlaceChart, AWidthOfExactly180LeavesTheChartsWidth) {
    ViewerMeasures measures = Usual;
    measures.width = 180;
    EXPECT_FALSE(PlaceChart(measures).width.has_value());
    measures.width = 181;
    EXPECT_EQ(PlaceChart(measures).width, 1);
}

TEST(PlaceChart, AHeightUpToWhatIsReservedLeavesTheChartsHeight) {
    ViewerMeasures measures = Usual;
    measures.height = 345 + 420 + 480;
    EXPECT_FALSE(PlaceChart(measures).height.has_value());
    ++measures.height;
    EXPECT_EQ(PlaceChart(measures).height, 1);
    measures.controlBarVisible = false;
    measures.height = 345 + 480;
    EXPECT_FALSE(PlaceChart(measures).height.has_value());
}

TEST(PlaceChart, MarginsComeOutEven) {
    const ChartPlace place = PlaceChart(Usual);
    const int clientWidth = Usual.width - NominalFrameWidth;
    const int clientHeight = Usual.height - NominalFrameHeight - Usual.statusBarHeight;
    EXPECT_EQ(clientWidth - place.left - place.width.value(), place.left);
    EXPECT_NEAR(clientHeight - place.top - place.height.value(), 40, 10);
}

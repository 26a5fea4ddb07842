#include "viewer/ViewerLayout.h"

namespace QmChart6 {

namespace {

constexpr int ChartLeft = 30;
constexpr int ChartTop = 40; // below the window's upper edge, or below the control bar

} // namespace

ChartPlace PlaceChart(const ViewerMeasures& measures) {
    ChartPlace place{.left = ChartLeft, .top = ChartTop, .width = {}, .height = {}};
    if (measures.width > ReservedWidth) place.width = measures.width - ReservedWidth;

    int reserved = measures.statusBarHeight + ReservedHeight;
    if (measures.controlBarVisible) {
        reserved += measures.controlBarHeight;
        place.top = measures.controlBarTop + measures.controlBarHeight + ChartTop;
    }
    if (measures.height > reserved) place.height = measures.height - reserved;
    return place;
}

} // namespace QmChart6

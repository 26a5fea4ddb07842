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

QRect PixelsOfPlace(const ChartPlace& place, const QRect& before) {
    const int left = PixelsOfTwips(place.left);
    const int top = PixelsOfTwips(place.top);
    const int width = place.width ? PixelsOfTwips(place.left + *place.width) - left : before.width();
    const int height = place.height ? PixelsOfTwips(place.top + *place.height) - top : before.height();
    return {left, top, width, height};
}

} // namespace QmChart6

#pragma once

#include "base/Units.h"

#include <QRect>

#include <optional>

namespace QmChart6 {

// Where things stand in a viewer, in twips. A window's width and height are those of its client area plus a
// nominal frame, whatever the desktop's real frame is, so that the chart's margins come out even.

// What a window's width and height hold beside the chart and the bars: that frame, and the chart's margins.
inline constexpr int ReservedWidth = 180;
inline constexpr int ReservedHeight = 480;

/// What the chart's place depends on. The control bar's place counts only while it is visible.
struct ViewerMeasures {
    int width = 0;
    int height = 0;
    int statusBarHeight = 0;
    int controlBarTop = 0;
    int controlBarHeight = 0;
    bool controlBarVisible = false;
};

/// The chart's place within the client area; without a width or height it keeps the one it has.
struct ChartPlace {
    int left = 0;
    int top = 0;
    std::optional<int> width;
    std::optional<int> height;
};

/// A window too narrow or too low for the chart gives no width or height.
ChartPlace PlaceChart(const ViewerMeasures& measures);

/// A place in whole logical pixels; both edges are rounded, so that no rounding adds up. `before` is where
/// the chart was.
QRect PixelsOfPlace(const ChartPlace& place, const QRect& before);

} // namespace QmChart6

#pragma once

#include <cmath>

namespace QmChart6 {

// A logical pixel is 1/96 inch, a point 1/72, a twip 1/20 of a point.
inline constexpr double MillimetresPerInch = 25.4;
inline constexpr double PixelsPerInch = 96;
inline constexpr double PointsPerInch = 72;
inline constexpr double PointsPerPixel = PointsPerInch / PixelsPerInch;
inline constexpr int TwipsPerPoint = 20;
inline constexpr int TwipsPerPixel = 15;
static_assert(TwipsPerPixel == TwipsPerPoint * PointsPerPixel);

/// What a window's frame adds to its inside, in twips; the same on every desktop, so that sizes are too.
inline constexpr int NominalFrameWidth = 120;
inline constexpr int NominalFrameHeight = 405;

inline int PixelsOfTwips(int twips) {
    return static_cast<int>(std::lround(static_cast<double>(twips) / TwipsPerPixel));
}
inline constexpr int TwipsOfPixels(int pixels) {
    return pixels * TwipsPerPixel;
}

} // namespace QmChart6

#pragma once

#include <cmath>

namespace QmChart6 {

/// 15 twips to a logical pixel, 20 to a point: a logical pixel is 1/96 inch.
inline constexpr int TwipsPerPixel = 15;
inline constexpr double PointsPerPixel = 0.75;

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

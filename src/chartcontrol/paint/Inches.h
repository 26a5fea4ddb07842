#pragma once

namespace QmChart6 {

// How many of each there are in an inch.
inline constexpr double PointsPerInch = 72;
inline constexpr double DotsPerInch = 96; // logical pixels
inline constexpr double MillimetresPerInch = 25.4;

} // namespace QmChart6

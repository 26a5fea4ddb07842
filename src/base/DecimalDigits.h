#pragma once

#include <array>
#include <limits>

namespace QmChart6 {

/// A finite number as its significant decimal digits: 0.d1d2d3... times ten to `pointPosition`, no zero at
/// either end. Zero has no digits.
struct DecimalDigits {
    static constexpr int MaximumCount = std::numeric_limits<double>::max_digits10;

    bool negative = false;
    int pointPosition = 0;
    int count = 0;
    std::array<char, MaximumCount> digits{};
};

/// The number's first `significant` digits (1 to 17), rounded to the nearest, zeros at the end dropped.
/// The value is finite.
DecimalDigits DigitsOf(double value, int significant);

} // namespace QmChart6

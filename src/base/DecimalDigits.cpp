#include "base/DecimalDigits.h"

#include <charconv>
#include <cmath>

namespace QmChart6 {

DecimalDigits DigitsOf(double value, int significant) {
    DecimalDigits result;
    result.negative = std::signbit(value) && value != 0;
    if (value == 0) return result;

    // "d.ddddE+xx" holds everything; only the point has to be stepped over.
    std::array<char, 40> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                            std::chars_format::scientific, significant - 1);
    const char* at = text.data();
    for (; at != end && *at != 'e'; ++at)
        if (*at != '.') result.digits[static_cast<std::size_t>(result.count++)] = *at;
    int exponent = 0;
    const char* exponentText = at + (at[1] == '+' ? 2 : 1);
    std::from_chars(exponentText, end, exponent);
    result.pointPosition = exponent + 1;
    while (result.count > 0 && result.digits[static_cast<std::size_t>(result.count) - 1] == '0')
        --result.count;
    return result;
}

} // namespace QmChart6

#include "chartcontrol/model/ColourContrast.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

constexpr Colour Black{0, 0, 0};
constexpr Colour White{255, 255, 255};

/// Relative luminance of a colour, WCAG 2.1.
double Luminance(Colour colour) {
    const auto linear = [](std::uint8_t component) {
        const double part = component / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.Red) + 0.7152 * linear(colour.Green) + 0.0722 * linear(colour.Blue);
}

} // namespace

double Contrast(Colour one, Colour other) {
    const double a = Luminance(one);
    const double b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

Colour Mixed(Colour ground, Colour over, double opacity) {
    const auto mixed = [opacity](std::uint8_t from, std::uint8_t to) {
        return static_cast<std::uint8_t>(std::lround(from + (to - from) * std::clamp(opacity, 0.0, 1.0)));
    };
    return {mixed(ground.Red, over.Red), mixed(ground.Green, over.Green), mixed(ground.Blue, over.Blue)};
}

bool IsDark(Colour ground) {
    return Contrast(White, ground) > Contrast(Black, ground);
}

Colour ReadableOn(Colour ground, Colour colour, double contrast) {
    if (Contrast(colour, ground) >= contrast) return colour;
    return IsDark(ground) ? White : Black;
}

Colour WithContrast(Colour colour, Colour ground, double contrast) {
    const Colour end = IsDark(ground) ? White : Black;
    constexpr int steps = 20;
    for (int step = 0; step < steps; ++step) {
        const Colour moved = Mixed(colour, end, static_cast<double>(step) / steps);
        if (Contrast(moved, ground) >= contrast) return moved;
    }
    return end;
}

} // namespace QmChart6

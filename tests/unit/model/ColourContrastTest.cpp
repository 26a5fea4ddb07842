#include "chartcontrol/model/ColourContrast.h"

#include "chartcontrol/model/Palette.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace QmChart6 {
namespace {

constexpr Colour Black{0, 0, 0};
constexpr Colour White{255, 255, 255};

TEST(ColourContrast, IsTwentyOneOfBlackOnWhiteAndOneOfEquals) {
    EXPECT_NEAR(Contrast(Black, White), 21, 1e-9);
    EXPECT_NEAR(Contrast(White, White), 1, 1e-9);
    EXPECT_NEAR(Contrast({118, 118, 118}, White), 4.54, 0.01);
}

TEST(ColourContrast, AReadableColourStaysAndAnotherGivesWay) {
    EXPECT_EQ(ReadableOn(White, {40, 40, 40}), (Colour{40, 40, 40}));
    EXPECT_EQ(ReadableOn(White, {255, 255, 0}), Black);
    EXPECT_EQ(ReadableOn(Black, {40, 40, 40}), White);
}

TEST(ColourContrast, AColourIsMovedAsLittleAsNeeded) {
    const Colour amber{219, 165, 60};
    const Colour moved = WithContrast(amber, White, TextContrast);
    EXPECT_GE(Contrast(moved, White), TextContrast);
    EXPECT_LT(Contrast(moved, White), TextContrast + 1);
    EXPECT_GT(moved.Red, moved.Blue);
    EXPECT_EQ(WithContrast(Black, White, TextContrast), Black);
}

TEST(ColourContrast, WhatShinesThroughIsMixed) {
    EXPECT_EQ(Mixed(White, Black, 0.5), (Colour{128, 128, 128}));
    EXPECT_EQ(Mixed(White, Black, 0), White);
    EXPECT_EQ(Mixed(White, Black, 1), Black);
}

using Linear = std::array<double, 3>;
using Matrix = std::array<Linear, 3>;

Linear LinearOf(Colour colour) {
    const auto linear = [](std::uint8_t component) {
        const double part = component / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return {linear(colour.Red), linear(colour.Green), linear(colour.Blue)};
}

Linear Times(const Matrix& matrix, const Linear& colour) {
    Linear result{};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            result[row] += matrix[row][column] * colour[column];
    return result;
}

/// Oklab (Ottosson, 2020), times 100.
Linear Lab(const Linear& linear) {
    static constexpr Matrix cones{{{0.4122214708, 0.5363325363, 0.0514459929},
                                   {0.2119034982, 0.6806995451, 0.1073969566},
                                   {0.0883024619, 0.2817188376, 0.6299787005}}};
    static constexpr Matrix lab{{{0.2104542553, 0.7936177850, -0.0040720468},
                                 {1.9779984951, -2.4285922050, 0.4505937099},
                                 {0.0259040371, 0.7827717662, -0.8086757660}}};
    Linear roots = Times(cones, linear);
    for (double& root : roots) root = 100 * std::cbrt(std::max(0.0, root));
    return Times(lab, roots);
}

/// Sight without a deficiency, and with the three at their strongest (Machado, Oliveira and Fernandes, 2009).
constexpr std::array<Matrix, 4> Sights{{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}},
    {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}},
}};

double Apart(Colour one, Colour other, const Matrix& sight) {
    const auto seen = [&sight](Colour colour) {
        Linear linear = Times(sight, LinearOf(colour));
        for (double& component : linear) component = std::clamp(component, 0.0, 1.0);
        return Lab(linear);
    };
    const Linear a = seen(one);
    const Linear b = seen(other);
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

double LightnessOf(Colour colour) {
    const Linear linear = LinearOf(colour);
    return 116 * std::cbrt(0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]) - 16;
}

TEST(Palette, IsToldApartWithEveryColourDeficiencyAndInGrey) {
    constexpr double leastApart = 7;
    constexpr double leastInGrey = 2.9;
    for (int one = 1; one <= PaletteSize; ++one)
        for (int other = one + 1; other <= PaletteSize; ++other) {
            for (const Matrix& sight : Sights)
                EXPECT_GE(Apart(PaletteColour(one), PaletteColour(other), sight), leastApart)
                    << one << " and " << other;
            EXPECT_GE(std::abs(LightnessOf(PaletteColour(one)) - LightnessOf(PaletteColour(other))),
                      leastInGrey)
                << one << " and " << other;
        }
}

TEST(Palette, StandsOutFromWhite) {
    for (int number = 1; number <= PaletteSize; ++number)
        EXPECT_GE(Contrast(PaletteColour(number), White), MarkContrast - 0.01) << number;
}

TEST(Palette, HasTenColoursBeforeHatchesBegin) {
    for (int number = 1; number <= 10; ++number)
        EXPECT_EQ(PaletteSeries(number, SeriesType::Bar2D).DataPoints.Item(DataPoints::All).Brush.Style,
                  BrushStyle::Solid);
    EXPECT_EQ(PaletteSeries(11, SeriesType::Bar2D).DataPoints.Item(DataPoints::All).Brush.Style,
              BrushStyle::Hatch);
}

} // namespace
} // namespace QmChart6

#include "chartcontrol/scale/Ticks.h"
#include "chartcontrol/scale/AxisMap.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace QmChart6 {
namespace {

void ExpectTicks(const Ticks& ticks, double first, double step, int count) {
    EXPECT_DOUBLE_EQ(ticks.first, first);
    EXPECT_DOUBLE_EQ(ticks.step, step);
    EXPECT_EQ(ticks.count, count);
}

TEST(Ticks, TheDataOfThePublishedExampleIsEnclosed) {
    ExpectTicks(ChooseTicks(8.1, 14.1, {.count = 4}), 7.5, 2.5, 4);
    ExpectTicks(ChooseTicks(8.1, 14.1, {.count = 7}), 8, 1, 8);
}

TEST(Ticks, HundredInSteps) {
    ExpectTicks(ChooseTicks(0, 100, {.count = 6}), 0, 20, 6);
    ExpectTicks(ChooseTicks(0, 97, {.count = 6}), 0, 20, 6);
    ExpectTicks(ChooseTicks(0, 1, {.count = 6}), 0, 0.2, 6);
}

TEST(Ticks, MoreThanTwoHaveStepsOfOneDigitOrOf25) {
    for (int count = 3; count <= 12; ++count)
        for (double high = 1; high < 100; high += 0.1) {
            const Ticks ticks = ChooseTicks(0, high, {.count = count});
            const double digits = ticks.step / std::pow(10, std::floor(std::log10(ticks.step) + 1e-9));
            const bool isRound =
                std::abs(digits - 2.5) < 1e-9 || std::abs(digits - std::round(digits)) < 1e-9;
            EXPECT_TRUE(ticks.count == 2 || isRound) << "0 to " << high << " by " << ticks.step;
        }
}

TEST(Ticks, FewThatFitBadlyAreRoundStill) {
    ExpectTicks(ChooseTicks(18.27, 44.09, {.count = 2}), 10, 10, 5);
}

TEST(Ticks, NegativeAndPositiveMeetZero) {
    const Ticks ticks = ChooseTicks(-37, 82, {.count = 6});
    bool zero = false;
    for (int i = 0; i < ticks.count; ++i) zero = zero || ticks.At(i) == 0;
    EXPECT_TRUE(zero);
}

TEST(Ticks, AConstantGetsARangeRoundIt) {
    for (const double value : {0.0, 1.0, -5.0, 1e300, -1e-300, 123456789.0}) {
        const Ticks ticks = ChooseTicks(value, value, {.count = 6});
        EXPECT_LT(ticks.first, value);
        EXPECT_GT(ticks.Last(), value);
        EXPECT_LE(ticks.count, 18);
    }
}

TEST(Ticks, StepsAreWholeUnitsWhereLabelsShowNoFiner) {
    ExpectTicks(ChooseTicks(0, 3, {.count = 8, .unit = 1}), 0, 1, 4);
    ExpectTicks(ChooseTicks(0, 1, {.count = 6, .unit = 1}), 0, 1, 2);
    const Ticks ticks = ChooseTicks(0, 0.031, {.count = 6, .unit = 0.01});
    EXPECT_NEAR(std::fmod(ticks.step, 0.01), 0, 1e-12);
}

TEST(Ticks, EncloseAnyRange) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-300, 300);
    std::uniform_int_distribution<int> count(2, 12);
    for (int i = 0; i < 3000; ++i) {
        const double scale = std::pow(10.0, exponent(random));
        double low = mantissa(random) * scale;
        double high = mantissa(random) * scale;
        const TickWish wish{.count = count(random)};
        const Ticks ticks = ChooseTicks(low, high, wish);
        if (low > high) std::swap(low, high);
        EXPECT_LE(ticks.first, low);
        EXPECT_GE(ticks.Last(), high - 1e-9 * ticks.step);
        EXPECT_GT(ticks.step, 0);
        EXPECT_GE(ticks.count, 2);
        EXPECT_LE(ticks.count, 3 * wish.count + 1);
    }
}

TEST(Ticks, TheWidestRangeStaysFinite) {
    const Ticks ticks = ChooseTicks(-1.7e308, 1.7e308, {.count = 6});
    EXPECT_TRUE(std::isfinite(ticks.first));
    EXPECT_TRUE(std::isfinite(ticks.Last()));
}

TEST(AxisMap, MapsEndsOntoEnds) {
    const AxisMap map{10, 20, 300, 100};
    EXPECT_DOUBLE_EQ(map.At(10), 300);
    EXPECT_DOUBLE_EQ(map.At(20), 100);
    EXPECT_DOUBLE_EQ(map.At(15), 200);
}

} // namespace
} // namespace QmChart6

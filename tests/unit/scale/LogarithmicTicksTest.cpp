#include "chartcontrol/scale/LogarithmicTicks.h"

#include "chartcontrol/scale/AxisMap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace QmChart6 {
namespace {

void ExpectTicks(const LogarithmicTicks& axis, const std::vector<double>& expected) {
    const std::vector<double>& ticks = axis.values;
    ASSERT_EQ(ticks.size(), expected.size());
    for (std::size_t i = 0; i < ticks.size(); ++i) EXPECT_DOUBLE_EQ(ticks[i], expected[i]);
}

TEST(LogarithmicTicks, AreDecades) {
    ExpectTicks(ChooseLogarithmicTicks(3, 40000, 6), {1, 10, 100, 1000, 10000, 100000});
}

TEST(LogarithmicTicks, OfFewDecadesAreAtOneTwoAndFive) {
    ExpectTicks(ChooseLogarithmicTicks(3, 60, 8), {2, 5, 10, 20, 50, 100});
}

TEST(LogarithmicTicks, OfManyDecadesSkipSome) {
    ExpectTicks(ChooseLogarithmicTicks(1, 1e12, 7), {1, 1e2, 1e4, 1e6, 1e8, 1e10, 1e12});
    ExpectTicks(ChooseLogarithmicTicks(2e-4, 1e12, 5), {1e-4, 1, 1e4, 1e8, 1e12});
    ExpectTicks(ChooseLogarithmicTicks(2e-3, 1e11, 5), {1, 1e4, 1e8});
    EXPECT_DOUBLE_EQ(ChooseLogarithmicTicks(2e-3, 1e11, 5).low, 1e-3);
    EXPECT_DOUBLE_EQ(ChooseLogarithmicTicks(2e-3, 1e11, 5).high, 1e11);
}

TEST(LogarithmicTicks, OfLessThanADecadeAreEven) {
    ExpectTicks(ChooseLogarithmicTicks(101, 148, 6), {100, 110, 120, 130, 140, 150});
}

TEST(LogarithmicTicks, EncloseAConstant) {
    ExpectTicks(ChooseLogarithmicTicks(7, 7, 6), {1, 10});
    ExpectTicks(ChooseLogarithmicTicks(10, 10, 6), {1, 10, 100});
}

TEST(LogarithmicTicks, EncloseAnyRange) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> exponent(-300, 300);
    std::uniform_real_distribution<double> reach(0, 6);
    for (int i = 0; i < 3000; ++i) {
        const double low = std::pow(10.0, exponent(random));
        const double high = low * std::pow(10.0, reach(random));
        const int count = 2 + i % 11;
        const LogarithmicTicks axis = ChooseLogarithmicTicks(low, high, count);
        const std::vector<double>& ticks = axis.values;
        ASSERT_GE(ticks.size(), 2U);
        ASSERT_LE(ticks.size(), 3U * static_cast<unsigned>(count) + 1);
        EXPECT_TRUE(std::is_sorted(ticks.begin(), ticks.end()));
        EXPECT_GT(axis.low, 0);
        EXPECT_LE(axis.low, ticks.front());
        EXPECT_GE(axis.high, ticks.back());
        EXPECT_LE(axis.low, low * (1 + 1e-8));
        EXPECT_GE(axis.high, high * (1 - 1e-8));
    }
}

TEST(LogarithmicTicks, AreNumbersAtTheEndsOfTheDoubles) {
    constexpr double least = std::numeric_limits<double>::denorm_min();
    constexpr double most = std::numeric_limits<double>::max();
    for (const auto& [low, high] : {std::pair{least, most}, {least, least}, {most, most}, {1e308, most}}) {
        const std::vector<double> ticks = ChooseLogarithmicTicks(low, high, 6).values;
        ASSERT_GE(ticks.size(), 2U);
        for (const double tick : ticks) EXPECT_TRUE(tick > 0 && std::isfinite(tick));
    }
}

TEST(LogarithmicTicks, OfAFixedRangeLieWithin) {
    ExpectTicks(LogarithmicTicksWithin(0.5, 2000, 5), {1, 10, 100, 1000});
    ExpectTicks(LogarithmicTicksWithin(11, 12, 2), {11, 12});
}

TEST(AxisMap, IsLogarithmic) {
    const AxisMap map{1, 1000, 300, 0, true};
    EXPECT_DOUBLE_EQ(map.At(10), 200);
    EXPECT_DOUBLE_EQ(map.ValueAt(200), 10);
    EXPECT_DOUBLE_EQ(map.Base(), 300);
    EXPECT_TRUE(std::isnan(map.At(0)));
    EXPECT_TRUE(std::isnan(map.At(-3)));
    EXPECT_DOUBLE_EQ(map.StandAt(0), 300);
}

TEST(AxisMap, StaysFiniteOverTheWidestRange) {
    constexpr double most = std::numeric_limits<double>::max();
    const AxisMap map{-most, most, 300, 100};
    EXPECT_DOUBLE_EQ(map.At(-most), 300);
    EXPECT_DOUBLE_EQ(map.At(0), 200);
    EXPECT_DOUBLE_EQ(map.At(most), 100);
    EXPECT_TRUE(std::isfinite(AxisMap(0, 1, 300, 100).At(most)));
    EXPECT_TRUE(std::isnan(map.At(std::nan(""))));
}

} // namespace
} // namespace QmChart6

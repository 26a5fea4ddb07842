#include "chartcontrol/scale/LogarithmicTicks.h"

#include "chartcontrol/scale/Ticks.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace QmChart6 {

namespace {

/// What rounding may add to a logarithm or take from it.
constexpr double Rounding = 1e-9;
/// Ranges up to this factor get even steps: they are nearly linear.
constexpr double NearlyLinear = 5;

int DecadeBelow(double value) {
    return static_cast<int>(std::floor(std::log10(value) + Rounding));
}
int DecadeAbove(double value) {
    return static_cast<int>(std::ceil(std::log10(value) - Rounding));
}

/// Not all powers of ten are doubles.
void AddTick(std::vector<double>& ticks, double factor, int decade) {
    const double value = factor * std::pow(10.0, decade);
    if (value > 0 && std::isfinite(value)) ticks.push_back(value);
}

/// Every stride-th power of ten, those that are multiples of the stride.
std::vector<double> Powers(int first, int last, int stride) {
    std::vector<double> ticks;
    for (int decade = first; decade <= last; ++decade)
        if (decade % stride == 0) AddTick(ticks, 1, decade);
    return ticks;
}

/// 1, 2 and 5 stand closer than powers: fewer of them look good.
std::size_t MostFine(int count) {
    return static_cast<std::size_t>(count) * 3 / 4;
}

/// Powers are this far apart for no more than `count` of them.
int StrideOf(int decades, int count) {
    return std::max(1, (decades + count - 2) / (count - 1));
}

/// 1, 2 and 5 of each decade, from the last that is not above the range to the first that is not below it.
std::vector<double> Fine(double low, double high) {
    std::vector<double> ticks;
    for (int decade = DecadeBelow(low); decade <= DecadeAbove(high); ++decade)
        for (const double factor : {1.0, 2.0, 5.0}) AddTick(ticks, factor, decade);
    while (ticks.size() > 2 && ticks[1] <= low * (1 + Rounding)) ticks.erase(ticks.begin());
    while (ticks.size() > 2 && ticks[ticks.size() - 2] >= high * (1 - Rounding)) ticks.pop_back();
    return ticks;
}

/// Even steps; none where they would begin at zero or below.
std::vector<double> Even(double low, double high, int count) {
    const Ticks even = ChooseTicks(low, high, {count, 0});
    std::vector<double> ticks;
    if (!(even.first > 0)) return ticks;
    for (int i = 0; i < even.count; ++i) ticks.push_back(even.At(i));
    return ticks;
}

} // namespace

LogarithmicTicks ChooseLogarithmicTicks(double low, double high, int count) {
    // What cannot be enclosed, next to the largest and the least double, ends the axis itself.
    const auto enclosing = [&](std::vector<double> ticks) {
        return LogarithmicTicks{std::min(ticks.front(), low), std::max(ticks.back(), high), std::move(ticks)};
    };
    count = std::max(2, count);
    const bool isConstant = high <= low * (1 + Rounding);
    if (!isConstant && high / NearlyLinear <= low) {
        std::vector<double> even = Even(low, high, count);
        if (even.size() >= 2) return enclosing(std::move(even));
    }
    const int first = DecadeBelow(low);
    const int last = DecadeAbove(high);
    if (first == last) return enclosing(Powers(first - 1, last + 1, 1));
    if (!isConstant) {
        std::vector<double> fine = Fine(low, high);
        if (fine.size() <= MostFine(count)) return enclosing(std::move(fine));
    }
    std::vector<double> all = Powers(first, last, 1);
    if (all.size() < 2) return enclosing(Powers(first - 2, last + 2, 1));
    LogarithmicTicks axis = enclosing(std::move(all));
    std::vector<double> thinned = Powers(first, last, StrideOf(last - first, count));
    axis.values = thinned.size() >= 2 ? std::move(thinned) : std::vector{axis.low, axis.high};
    return axis;
}

LogarithmicTicks LogarithmicTicksWithin(double low, double high, int count) {
    const auto within = [&](std::vector<double> ticks) {
        std::erase_if(
            ticks, [&](double tick) { return tick < low * (1 - Rounding) || tick > high * (1 + Rounding); });
        return ticks;
    };
    count = std::max(2, count);
    if (high / NearlyLinear > low) {
        std::vector<double> fine = within(Fine(low, high));
        if (fine.size() >= 2 && fine.size() <= MostFine(count)) return {low, high, std::move(fine)};
        const int first = DecadeAbove(low);
        const int last = DecadeBelow(high);
        std::vector<double> powers = within(Powers(first, last, StrideOf(last - first, count)));
        if (powers.size() >= 2) return {low, high, std::move(powers)};
    }
    std::vector<double> even = within(Even(low, high, count));
    return {low, high, even.size() >= 2 ? std::move(even) : std::vector{low, high}};
}

} // namespace QmChart6

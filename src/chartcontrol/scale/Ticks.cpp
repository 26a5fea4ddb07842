#include "chartcontrol/scale/Ticks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace QmChart6 {

namespace {

/// Steps in the order of preference, times a power of ten.
constexpr std::array<double, 6> NiceSteps{1, 5, 2, 2.5, 4, 3};

constexpr double SimplicityWeight = 0.25;
constexpr double CoverageWeight = 0.2;
constexpr double DensityWeight = 0.5;
constexpr double LegibilityWeight = 0.05;

/// Skipping more than this many steps between labels never wins, nor do more ticks than this factor times the
/// wish.
constexpr int MaximumSkip = 6;
constexpr int MaximumCountFactor = 3;

/// Ranges smaller than this part of their values cannot be divided into steps that doubles tell apart.
constexpr double SmallestRelativeRange = 1e-12;
/// Below this values count as zero: their range could not be mapped onto points.
constexpr double SmallestValue = 1e-300;
/// Beyond this a range of two values, or what the search makes of it, might overflow; the search is done in
/// units of VastUnit then.
constexpr double LargestValue = 1e300;
constexpr double VastUnit = 1e300;

struct Search {
    double low;
    double high;
    TickWish wish;
    double bestScore = -std::numeric_limits<double>::infinity();
    std::optional<Ticks> best{};

    static double Simplicity(std::size_t preference, int skip, bool meetsZero) {
        return 1 - static_cast<double>(preference) / (NiceSteps.size() - 1) - skip + (meetsZero ? 1 : 0);
    }
    [[nodiscard]] double Coverage(double first, double last) const {
        const double tenth = 0.1 * (high - low);
        return 1 - 0.5 * (std::pow((high - last) / tenth, 2) + std::pow((low - first) / tenth, 2));
    }
    [[nodiscard]] double BestCoverage(double span) const {
        const double range = high - low;
        if (span <= range) return 1;
        return 1 - std::pow((span - range) / 2 / (0.1 * range), 2);
    }
    [[nodiscard]] double Density(int count, double first, double last) const {
        const double density = (count - 1) / (last - first);
        const double wished = (wish.count - 1) / (std::max(last, high) - std::min(low, first));
        return 2 - std::max(density / wished, wished / density);
    }
    [[nodiscard]] double BestDensity(int count) const {
        return count < wish.count ? 1 : 2 - static_cast<double>(count - 1) / (wish.count - 1);
    }
    static double Score(double simplicity, double coverage, double density) {
        return SimplicityWeight * simplicity + CoverageWeight * coverage + DensityWeight * density +
               LegibilityWeight;
    }
    [[nodiscard]] bool StepAllowed(double step) const {
        if (wish.unit <= 0) return true;
        const double units = step / wish.unit;
        return units > 0.5 && std::abs(units - std::round(units)) < 1e-9 * units;
    }

    void TryStarts(std::size_t preference, int skip, int count, double step) {
        const double unit = step / skip;
        const double start = std::ceil(high / step) * skip - static_cast<double>(count - 1) * skip;
        const double end = std::floor(low / step) * skip;
        for (double multiple = start; multiple <= end; ++multiple) {
            const double first = multiple * unit;
            const double last = first + step * (count - 1);
            if (first > low || last < high) continue;
            const bool meetsZero = first <= 0 && last >= 0 && std::fmod(multiple, skip) == 0;
            const double score = Score(Simplicity(preference, skip, meetsZero), Coverage(first, last),
                                       Density(count, first, last));
            if (score <= bestScore) continue;
            bestScore = score;
            best = Ticks{first, step, count};
        }
    }

    /// Steps of 1 to 5, or of 25. Two ticks alone may tell more precisely where the data ends.
    static bool IsRound(double multiple, int count) {
        if (count == 2 || multiple == 2.5 || multiple == 25) return true;
        return multiple <= 5 ? std::fmod(multiple, 1) == 0 : std::fmod(multiple, 10) == 0 && multiple <= 50;
    }

    void TryPowers(std::size_t preference, int skip, int count) {
        const double multiple = skip * NiceSteps[preference];
        if (!IsRound(multiple, count)) return;
        const double exponent = std::ceil(std::log10((high - low) / (count + 1) / multiple));
        for (double power = exponent; power < exponent + 4; ++power) {
            const double step = multiple * std::pow(10.0, power);
            if (!(step > 0) || !std::isfinite(step)) return;
            if (Score(Simplicity(preference, skip, true), BestCoverage(step * (count - 1)),
                      BestDensity(count)) < bestScore)
                return;
            if (StepAllowed(step)) TryStarts(preference, skip, count, step);
        }
    }

    void Run() {
        for (int skip = 1; skip <= MaximumSkip; ++skip) {
            for (std::size_t preference = 0; preference < NiceSteps.size(); ++preference) {
                if (Score(Simplicity(preference, skip, true), 1, 1) < bestScore) return;
                for (int count = 2; count <= MaximumCountFactor * wish.count; ++count) {
                    if (Score(Simplicity(preference, skip, true), 1, BestDensity(count)) < bestScore) break;
                    TryPowers(preference, skip, count);
                }
            }
        }
    }
};

void GiveExtent(double& low, double& high, double unit) {
    const double largest = std::max(std::abs(low), std::abs(high));
    if (largest >= SmallestValue && high - low > largest * SmallestRelativeRange) return;
    const double half = largest < SmallestValue ? 0.5 : largest * 0.1;
    low -= std::max(half, unit);
    high += std::max(half, unit);
}

/// For ranges in which the search met no step that is allowed: the unit, or its least multiple that gives no
/// more ticks than were wished for.
Ticks Fallback(double low, double high, const TickWish& wish) {
    const double unit = wish.unit > 0 ? wish.unit : (high - low) / (wish.count - 1);
    const double step = std::max(1.0, std::ceil((high - low) / unit / (wish.count - 1))) * unit;
    const double first = std::floor(low / step) * step;
    return {first, step, std::max(2, static_cast<int>(std::ceil((high - first) / step)) + 1)};
}

/// Leaves out ticks that no double can be: the largest values lie outside the others.
Ticks WithinDoubles(Ticks ticks, double low, double high) {
    constexpr double most = std::numeric_limits<double>::max() / VastUnit;
    while (ticks.count > 0 && ticks.first < -most) ticks.first += ticks.step, --ticks.count;
    while (ticks.count > 0 && ticks.Last() > most) --ticks.count;
    if (ticks.count >= 2) return ticks;
    const double step = 1e308 / VastUnit;
    return {high > -low ? 0 : -step, step, 2};
}

} // namespace

double Ticks::At(int index) const {
    // By halves: of the vastest ticks the last is more than a double from the first.
    const double value = 2 * (first / 2 + step / 2 * index);
    return std::abs(value) < step * 1e-9 ? 0 : value;
}

Ticks ChooseTicks(double low, double high, const TickWish& wish) {
    if (low > high) std::swap(low, high);
    if (std::max(std::abs(low), std::abs(high)) > LargestValue) {
        low /= VastUnit;
        high /= VastUnit;
        const Ticks ticks =
            WithinDoubles(ChooseTicks(low, high, {wish.count, wish.unit / VastUnit}), low, high);
        return {ticks.first * VastUnit, ticks.step * VastUnit, ticks.count};
    }
    GiveExtent(low, high, wish.unit);
    Search search{.low = low, .high = high, .wish = {std::max(2, wish.count), wish.unit}};
    search.Run();
    return search.best ? *search.best : Fallback(low, high, search.wish);
}

} // namespace QmChart6

#include "chartcontrol/layout/text/DataFormat.h"

#include "base/NumberFormat.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// What is told of the largest value; smaller ones get as many decimals as it.
constexpr int Digits = 4;
constexpr int MostDecimals = 9;
constexpr double GroupingFrom = 10000;
/// Where plain digits would run longer than this, values get an exponent.
constexpr double LargestPlain = 1e15;
constexpr double SmallestPlain = 1e-6;
constexpr int MostLookedAt = 20000;

/// The decimals that a value needs, `most` at the most.
int DecimalsOf(double value, int most) {
    int decimals = 0;
    double scaled = std::abs(value);
    for (; decimals < most && std::abs(scaled - std::round(scaled)) > 1e-9 * std::max(1.0, scaled);
         ++decimals)
        scaled *= 10;
    return decimals;
}

template<class Visit>
void ForValues(const Chart& chart, Visit visit) {
    const int series = chart.Plot.SeriesCollection.Count();
    const int stride = std::max(1, chart.CategoryCount() / std::max(1, MostLookedAt / std::max(1, series)));
    for (int number = 1; number <= series; ++number) {
        const Values values = chart.SeriesValues(number);
        for (int i = 0; i < values.count; i += stride)
            if (!std::isnan(values[i])) visit(values[i]);
    }
}

QString WithDecimals(const QString& whole, int decimals) {
    return decimals == 0 ? whole : whole + QLatin1Char('.') + QString(decimals, QLatin1Char('0'));
}

int ExponentOf(double value) {
    return value > 0 ? static_cast<int>(std::floor(std::log10(value))) : 0;
}

} // namespace

QString DataFormatOf(const Chart& chart) {
    double largest = 0;
    ForValues(chart, [&largest](double value) { largest = std::max(largest, std::abs(value)); });
    if (largest >= LargestPlain || (largest > 0 && largest < SmallestPlain))
        return QStringLiteral("0.##E+00");
    const int most = std::clamp(Digits - 1 - ExponentOf(largest), 0, MostDecimals);
    int decimals = 0;
    ForValues(chart, [&](double value) { decimals = std::max(decimals, DecimalsOf(value, most)); });
    return WithDecimals(largest >= GroupingFrom ? QStringLiteral("#,##0") : QStringLiteral("0"), decimals);
}

QString DataText(double value, const QString& format) {
    const double size = std::abs(value);
    const bool plain = !format.contains(QLatin1Char('E'));
    if (plain && size > 0 && size < 0.5 * std::pow(10.0, -FormatDecimals(format))) {
        if (size < SmallestPlain) return FormatNumber(value, QStringLiteral("0.#E+00"));
        return FormatNumber(value,
                            WithDecimals(QStringLiteral("0"), std::min(MostDecimals, 1 - ExponentOf(size))));
    }
    return FormatNumber(value, format);
}

} // namespace QmChart6

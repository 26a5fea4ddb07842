#include "chartcontrol/layout/axes/TickTexts.h"

#include "base/NumberFormat.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace QmChart6 {

namespace {

/// From here on values are told in units; those below the least step, which plain digits would run too long
/// for, as well.
constexpr double UnitsFrom = 1e7;
constexpr double SmallestPlainStep = 1e-6;
constexpr double SmallUnitsBelow = 1e-3;
/// Where a unit would need more decimals, plain digits are shorter; from this value on they are not.
constexpr int MostDecimalsOfUnit = 3;
constexpr double LargestPlain = 1e15;
constexpr double GroupingFrom = 10000;
constexpr int MostDecimals = 14;

/// On a logarithmic axis values from here to here are written plainly.
constexpr double SmallestShort = 1e-4;
constexpr double LargestShort = 1e6;

/// The names of a million, a thousand millions, and a million millions.
struct UnitNames {
    QLocale::Language language;
    QLocale::Territory territory; // AnyTerritory for the others of the language
    std::array<const char16_t*, 3> names;
};

constexpr std::array Names{
    UnitNames{QLocale::C, QLocale::AnyTerritory, {u"million", u"billion", u"trillion"}},
    UnitNames{QLocale::English, QLocale::AnyTerritory, {u"million", u"billion", u"trillion"}},
    UnitNames{QLocale::Portuguese, QLocale::Portugal, {u"milhões", u"mil milhões", u"biliões"}},
    UnitNames{QLocale::Portuguese, QLocale::AnyTerritory, {u"milhões", u"bilhões", u"trilhões"}},
    UnitNames{QLocale::Spanish, QLocale::AnyTerritory, {u"millones", u"miles de millones", u"billones"}},
    UnitNames{QLocale::Italian, QLocale::AnyTerritory, {u"milioni", u"miliardi", u"mila miliardi"}},
};

QString Superscript(int number) {
    static constexpr std::u16string_view digits = u"⁰¹²³⁴⁵⁶⁷⁸⁹";
    QString text = number < 0 ? QStringLiteral("⁻") : QString();
    for (const QChar digit : QString::number(std::abs(number)))
        text += QChar(digits[static_cast<std::size_t>(digit.digitValue())]);
    return text;
}

QString PowerText(int exponent) {
    return QStringLiteral("10") + Superscript(exponent);
}

QString UnitText(int exponent) {
    if (exponent == 0) return {};
    const QLocale locale;
    const auto found = std::ranges::find_if(Names, [&](const UnitNames& row) {
        return row.language == locale.language() &&
               (row.territory == locale.territory() || row.territory == QLocale::AnyTerritory);
    });
    const auto name = static_cast<std::size_t>(exponent / 3 - 2);
    if (exponent < 6 || found == Names.end() || name >= found->names.size())
        return QStringLiteral("×") + PowerText(exponent);
    return QString::fromUtf16(found->names[name]);
}

/// The decimals that tell a value, up to the most.
int DecimalsOf(double value, int most = MostDecimals) {
    int decimals = 0;
    for (value = std::abs(value); decimals < most && std::abs(value - std::round(value)) > 1e-9 * value;
         ++decimals)
        value *= 10;
    return decimals;
}

QString PlainFormat(int decimals, bool grouped) {
    const QString whole = grouped ? QStringLiteral("#,##0") : QStringLiteral("0");
    return decimals == 0 ? whole : whole + QLatin1Char('.') + QString(decimals, QLatin1Char('0'));
}

QString PlainText(double value, int decimals, bool grouped) {
    return FormatNumber(value, PlainFormat(decimals, grouped));
}

/// A value in units of a power of ten, which need not be a double.
double InUnits(double value, int exponent) {
    if (exponent == 0) return value;
    const int half = exponent / 2;
    return value / std::pow(10.0, half) / std::pow(10.0, exponent - half);
}

int ExponentOf(double value) {
    return static_cast<int>(std::floor(std::log10(value) + 1e-9));
}

/// The power of a thousand that the ticks are told in.
int UnitOf(double largest, double step) {
    if (largest < UnitsFrom && step >= SmallestPlainStep) return 0;
    const int exponent = 3 * static_cast<int>(std::floor(ExponentOf(largest) / 3.0));
    if (largest >= LargestPlain) return exponent;
    if (largest >= UnitsFrom) return DecimalsOf(InUnits(step, exponent)) <= MostDecimalsOfUnit ? exponent : 0;
    return step < SmallestPlainStep && largest < SmallUnitsBelow ? exponent : 0;
}

/// The decimals that tell even ticks; of odd steps, such as thirds, as many as tell the ticks apart.
int DecimalsOfTicks(double first, double step) {
    constexpr int digitsOfStep = 3;
    const int most = std::clamp(digitsOfStep - ExponentOf(step), 0, MostDecimals);
    return std::max(DecimalsOf(first, most), DecimalsOf(step, most));
}

double LargestOf(const std::vector<double>& ticks) {
    double largest = 0;
    for (const double tick : ticks) largest = std::max(largest, std::abs(tick));
    return largest;
}

/// A power of ten, or a multiple of one.
QString TextOfPower(double value) {
    const int exponent = ExponentOf(value);
    const double factor = InUnits(value, exponent);
    const QString power = exponent == 0 ? QString() : PowerText(exponent);
    const bool isPower = std::abs(factor - 1) < 1e-9;
    if (isPower) return exponent == 0 ? QStringLiteral("1") : power;
    const QString times = PlainText(factor, DecimalsOf(factor), false);
    return exponent == 0 ? times : times + QStringLiteral("×") + power;
}

} // namespace

TickTexts TextsOfEvenTicks(const std::vector<double>& ticks) {
    const double largest = LargestOf(ticks);
    const double step = ticks.size() > 1 ? ticks[1] / 2 - ticks[0] / 2 : largest / 2;
    if (!(step > 0)) return {};
    const int exponent = UnitOf(largest, 2 * step);
    const int decimals = DecimalsOfTicks(InUnits(ticks[0], exponent), 2 * InUnits(step, exponent));
    const QString format = PlainFormat(decimals, InUnits(largest, exponent) >= GroupingFrom);
    TickTexts texts;
    for (const double tick : ticks) texts.labels += FormatNumber(InUnits(tick, exponent), format);
    texts.unit = UnitText(exponent);
    return texts;
}

TickTexts TextsOfLogarithmicTicks(const std::vector<double>& ticks) {
    constexpr double decade = 10;
    const bool plain = ticks.front() >= SmallestShort && ticks.back() <= LargestShort;
    if (plain && ticks.back() < decade * ticks.front()) return TextsOfEvenTicks(ticks);
    TickTexts texts;
    for (const double tick : ticks)
        texts.labels += plain ? PlainText(tick, DecimalsOf(tick), tick >= GroupingFrom) : TextOfPower(tick);
    return texts;
}

} // namespace QmChart6

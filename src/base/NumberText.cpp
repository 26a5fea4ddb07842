#include "base/NumberText.h"

#include "base/DecimalDigits.h"
#include "qmchart6/RuntimeError.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace QmChart6 {

namespace {

constexpr int DoubleDigits = std::numeric_limits<double>::digits10; // 15
constexpr int SingleDigits = 7;

QString OddText(double value) {
    if (std::isnan(value)) return QStringLiteral("NaN");
    return value < 0 ? QStringLiteral("-Infinity") : QStringLiteral("Infinity");
}

QString PlainText(const DecimalDigits& number, QChar separator) {
    QString text;
    if (number.pointPosition <= 0) text += QLatin1Char('0');
    for (int place = 0; place < number.pointPosition; ++place)
        text += place < number.count ? QLatin1Char(number.digits[static_cast<std::size_t>(place)])
                                     : QLatin1Char('0');
    if (number.count > number.pointPosition) {
        text += separator;
        text += QString(qMax(0, -number.pointPosition), QLatin1Char('0'));
        for (int place = qMax(0, number.pointPosition); place < number.count; ++place)
            text += QLatin1Char(number.digits[static_cast<std::size_t>(place)]);
    }
    return text;
}

QString ExponentText(const DecimalDigits& number, QChar separator) {
    QString text(QLatin1Char(number.digits[0]));
    if (number.count > 1) text += separator;
    for (int place = 1; place < number.count; ++place)
        text += QLatin1Char(number.digits[static_cast<std::size_t>(place)]);
    const int exponent = number.pointPosition - 1;
    return text + QLatin1String(exponent < 0 ? "E-" : "E+") +
           QStringLiteral("%1").arg(std::abs(exponent), 2, 10, QLatin1Char('0'));
}

QString TextOf(double value, int significant) {
    if (!std::isfinite(value)) return OddText(value);
    const DecimalDigits number = DigitsOf(value, significant);
    if (number.count == 0) return QStringLiteral("0");
    const bool plain =
        number.pointPosition <= significant && number.count - number.pointPosition <= significant;
    const QChar separator = DecimalSeparator();
    const QString text = plain ? PlainText(number, separator) : ExponentText(number, separator);
    return number.negative ? QLatin1Char('-') + text : text;
}

/// Powers of ten that a double holds exactly.
constexpr std::array<double, 23> ExactPowers = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

double RoundedByText(double value, int significant) {
    std::array<char, 40> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::scientific, significant - 1)
                         .ptr;
    double rounded = value;
    std::from_chars(text.data(), end, rounded); // the largest double stays below the range's end: no overflow
    return rounded;
}

/// The value's first `significant` digits. Most values take the short way: scaled to a whole number of that
/// many digits with bits to spare, rounded, and divided back, where the one rounding of the division gives
/// the double nearest to the decimal. A value too near to the middle of two whole numbers, or out of the
/// exact powers' reach, goes through its text.
double RoundedTo(int significant, double value) {
    if (value == 0) return 0;
    if (!std::isfinite(value)) return value;
    const double size = std::fabs(value);
    const double limit = ExactPowers[static_cast<std::size_t>(significant)];
    if (size < limit && size == std::trunc(size)) return value;
    if constexpr (std::numeric_limits<long double>::digits >= 64) {
        if (size < limit && size >= 1e-7) {
            const int binary = std::ilogb(size);
            int places = significant - 1 - ((binary * 1233) >> 12);
            if (size * ExactPowers[static_cast<std::size_t>(qBound(0, places, 22))] >= limit) --places;
            if (places >= 0 && places <= 22) {
                const double power = ExactPowers[static_cast<std::size_t>(places)];
                const long double scaled = static_cast<long double>(size) * static_cast<long double>(power);
                const auto whole = static_cast<long long>(scaled);
                const auto rest = static_cast<double>(scaled - static_cast<long double>(whole));
                if (std::fabs(rest - 0.5) > 1e-3)
                    return std::copysign(static_cast<double>(whole + (rest > 0.5 ? 1 : 0)) / power, value);
            }
        }
    }
    return RoundedByText(value, significant);
}

bool HoldsPoint(double value, int significant) {
    const double limit = ExactPowers[static_cast<std::size_t>(significant)];
    if (std::fabs(value) < limit && value == std::trunc(value)) return false;
    if (DecimalSeparator() != QLatin1Char('.')) return false;
    if (!std::isfinite(value)) return false;
    const DecimalDigits number = DigitsOf(value, significant);
    const bool exponent =
        number.pointPosition > significant || number.count - number.pointPosition > significant;
    return exponent ? number.count > 1 : number.count > number.pointPosition;
}

bool IsDigit(char16_t character) {
    return character >= u'0' && character <= u'9';
}

/// The number's text with "." for the locale's separator, or nothing where it is not a number's text.
std::string PlainNumber(QStringView text, QChar separator) {
    std::string plain;
    qsizetype at = 0;
    const auto sign = [&] {
        if (at < text.size() && (text[at] == u'-' || text[at] == u'+')) {
            if (text[at] == u'-') plain += '-';
            ++at;
        }
    };
    const auto digits = [&] {
        const qsizetype first = at;
        while (at < text.size() && IsDigit(text[at].unicode()))
            plain += static_cast<char>(text[at++].unicode());
        return at - first;
    };
    sign();
    qsizetype count = digits();
    if (at < text.size() && text[at] == separator) {
        plain += '.';
        ++at;
        count += digits();
    }
    if (count == 0) return {};
    if (at < text.size() && (text[at] == u'E' || text[at] == u'e')) {
        plain += 'e';
        ++at;
        sign();
        if (digits() == 0) return {};
    }
    return at == text.size() ? plain : std::string();
}

/// Whether a number's text that is out of a double's range is too large for it, not too small: its first
/// digit other than 0 stands left of the point once the exponent has moved it.
bool IsTooLarge(const std::string& plain) {
    const std::size_t mark = std::min(plain.find('e'), plain.size());
    const std::size_t point = std::min(plain.find('.'), mark);
    const std::size_t first = plain.find_first_of("123456789");
    long long exponent = 0;
    if (mark < plain.size() &&
        std::from_chars(plain.data() + mark + 1, plain.data() + plain.size(), exponent).ec != std::errc())
        return plain[mark + 1] != '-';
    return exponent + static_cast<long long>(point) - static_cast<long long>(first) > 0;
}

} // namespace

QString TextOfDouble(double value) {
    return TextOf(value, DoubleDigits);
}

QString TextOfSingle(float value) {
    return TextOf(static_cast<double>(value), SingleDigits);
}

QChar DecimalSeparator() {
    const QString point = QLocale().decimalPoint();
    return point.isEmpty() ? QChar(u'.') : point.front();
}

double NumberOfText(QStringView text) {
    const QStringView trimmed = text.trimmed();
    const std::string plain = PlainNumber(trimmed, DecimalSeparator());
    double value = 0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (plain.empty() || result.ec == std::errc::invalid_argument)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("a number was expected, not \"%1\"").arg(trimmed.left(40)));
    if (result.ec == std::errc::result_out_of_range) {
        if (IsTooLarge(plain))
            throw RuntimeError(ErrorNumber::Overflow,
                               QStringLiteral("\"%1\" is too large for a number").arg(trimmed.left(40)));
        return 0;
    }
    return value == 0 ? 0 : value;
}

double RoundedAsText(double value) {
    return RoundedTo(DoubleDigits, value);
}

double RoundedAsText(float value) {
    return RoundedTo(SingleDigits, static_cast<double>(value));
}

bool TextHoldsPoint(double value) {
    return HoldsPoint(value, DoubleDigits);
}

bool TextHoldsPoint(float value) {
    return HoldsPoint(static_cast<double>(value), SingleDigits);
}

} // namespace QmChart6

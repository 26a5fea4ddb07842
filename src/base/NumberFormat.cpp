#include "base/NumberFormat.h"

#include "base/DecimalDigits.h"
#include "base/NumberText.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

constexpr int SignificantDigits = std::numeric_limits<double>::digits10;

/// A format taken apart.
struct NumberPattern {
    QString before;
    QString behind;
    bool holdsPlaces = false;
    int leastWhole = 0;
    int leastDecimals = 0;
    int mostDecimals = 0;
    bool grouped = false;
    int percents = 0;
    bool exponent = false;
    bool exponentShowsPlus = false;
    int leastExponent = 0;
};

bool IsPlace(QChar character) {
    return character == u'0' || character == u'#';
}

/// Reads a format from left to right: literals, the run of digit places, an exponent, literals.
class PatternReader {
public:
    explicit PatternReader(const QString& format) : format_(format), separator_(DecimalSeparator()) {}

    NumberPattern Read() {
        pattern_.before = Literals();
        const qsizetype first = at_;
        while (at_ < format_.size() && (IsPlace(format_[at_]) || IsMark(format_[at_]))) ++at_;
        ReadPlaces(QStringView(format_).mid(first, at_ - first));
        if (pattern_.holdsPlaces) {
            ReadExponent();
            inNumber_ = false;
        }
        pattern_.behind = Literals();
        return pattern_;
    }

private:
    [[nodiscard]] bool IsMark(QChar character) const {
        return character == u'.' || character == u',' || character == separator_;
    }

    /// A place, or a separator with a place right behind it, begins the number.
    [[nodiscard]] bool BeginsNumber() const {
        return inNumber_ && (IsPlace(format_[at_]) ||
                             (IsMark(format_[at_]) && at_ + 1 < format_.size() && IsPlace(format_[at_ + 1])));
    }

    QString Literals() {
        QString text;
        bool quoted = false;
        for (; at_ < format_.size(); ++at_) {
            if (!quoted && BeginsNumber()) break;
            const QChar character = format_[at_];
            if (character == u'"') {
                quoted = !quoted;
                continue;
            }
            if (character == u'%' && !quoted) ++pattern_.percents;
            text += character;
        }
        return text;
    }

    /// Where the decimal separator stands. A "." always is one. The locale's own is one too, but for a comma
    /// that groups ("#,##0"): what tells it is an optional place before one that is always shown.
    [[nodiscard]] qsizetype PointOf(QStringView places) const {
        const qsizetype point = places.lastIndexOf(u'.');
        if (point >= 0) return point;
        const qsizetype mark = places.lastIndexOf(separator_);
        if (mark < 0) return places.size();
        const QStringView behind = places.mid(mark + 1);
        return behind.startsWith(u'#') && behind.contains(u'0') ? places.size() : mark;
    }

    void ReadPlaces(QStringView places) {
        const qsizetype point = PointOf(places);
        for (qsizetype at = 0; at < places.size(); ++at) {
            if (at == point) continue;
            if (!IsPlace(places[at])) {
                pattern_.grouped = pattern_.grouped || at < point;
                continue;
            }
            pattern_.holdsPlaces = true;
            const bool always = places[at] == u'0';
            if (at < point) {
                if (always || pattern_.leastWhole > 0) ++pattern_.leastWhole;
            } else {
                ++pattern_.mostDecimals;
                if (always) pattern_.leastDecimals = pattern_.mostDecimals;
            }
        }
    }

    void ReadExponent() {
        if (at_ + 2 >= format_.size() || format_[at_].toUpper() != u'E') return;
        if (format_[at_ + 1] != u'+' && format_[at_ + 1] != u'-') return;
        if (!IsPlace(format_[at_ + 2])) return;
        pattern_.exponent = true;
        pattern_.exponentShowsPlus = format_[at_ + 1] == u'+';
        for (at_ += 2; at_ < format_.size() && IsPlace(format_[at_]); ++at_) ++pattern_.leastExponent;
    }

    const QString& format_;
    QChar separator_;
    qsizetype at_ = 0;
    bool inNumber_ = true;
    NumberPattern pattern_;
};

/// Cuts a number to `places` digits before the cut, halves away from zero; `places` may be 0 or less.
void RoundDigits(DecimalDigits& number, int places) {
    if (places >= number.count) return;
    const bool up = places >= 0 && number.digits[static_cast<std::size_t>(places)] >= '5';
    number.count = std::max(places, 0);
    if (up) {
        int at = number.count - 1;
        while (at >= 0 && number.digits[static_cast<std::size_t>(at)] == '9') --at;
        number.count = at + 1;
        if (at >= 0) {
            ++number.digits[static_cast<std::size_t>(at)];
        } else {
            number.digits[0] = '1';
            number.count = 1;
            ++number.pointPosition;
        }
    }
    while (number.count > 0 && number.digits[static_cast<std::size_t>(number.count) - 1] == '0')
        --number.count;
}

QChar DigitAt(const DecimalDigits& number, int place) {
    return place >= 0 && place < number.count
               ? QChar(QLatin1Char(number.digits[static_cast<std::size_t>(place)]))
               : QChar(u'0');
}

QString WholeText(const DecimalDigits& number, const NumberPattern& pattern) {
    const int shown = number.count == 0 ? 0 : std::max(number.pointPosition, 0);
    const int length = std::max(shown, pattern.leastWhole);
    const QString group = pattern.grouped ? QLocale().groupSeparator() : QString();
    QString text;
    for (int place = shown - length; place < shown; ++place) {
        text += DigitAt(number, place);
        const int rest = shown - place - 1;
        if (rest > 0 && rest % 3 == 0) text += group;
    }
    return text;
}

QString DecimalsText(const DecimalDigits& number, const NumberPattern& pattern) {
    const int held = number.count == 0 ? 0 : std::max(number.count - number.pointPosition, 0);
    const int length = std::clamp(held, pattern.leastDecimals, pattern.mostDecimals);
    if (length == 0) return {};
    QString text(DecimalSeparator());
    for (int decimal = 0; decimal < length; ++decimal)
        text += DigitAt(number, number.pointPosition + decimal);
    return text;
}

QString ExponentText(int exponent, const NumberPattern& pattern) {
    QString text(u'E');
    if (exponent < 0)
        text += u'-';
    else if (pattern.exponentShowsPlus)
        text += u'+';
    return text + QStringLiteral("%1").arg(std::abs(exponent), pattern.leastExponent, 10, QLatin1Char('0'));
}

QString NumberText(double value, const NumberPattern& pattern) {
    DecimalDigits number = DigitsOf(value, SignificantDigits);
    number.pointPosition += number.count == 0 ? 0 : 2 * pattern.percents;
    QString exponentText;
    if (pattern.exponent) {
        const int whole = std::max(pattern.leastWhole, 1);
        RoundDigits(number, whole + pattern.mostDecimals);
        const int exponent = number.count == 0 ? 0 : number.pointPosition - whole;
        if (number.count > 0) number.pointPosition = whole;
        exponentText = ExponentText(exponent, pattern);
    } else {
        RoundDigits(number, number.pointPosition + pattern.mostDecimals);
    }
    const QString sign = number.negative && number.count > 0 ? QStringLiteral("-") : QString();
    return sign + pattern.before + WholeText(number, pattern) + DecimalsText(number, pattern) + exponentText +
           pattern.behind;
}

} // namespace

QString FormatNumber(double value, const QString& format) {
    if (std::isnan(value)) return {};
    if (format.isEmpty() || !std::isfinite(value)) return TextOfDouble(value);
    const NumberPattern pattern = PatternReader(format).Read();
    return pattern.holdsPlaces ? NumberText(value, pattern) : pattern.before + pattern.behind;
}

int FormatDecimals(const QString& format) {
    return format.isEmpty() ? -1 : PatternReader(format).Read().mostDecimals;
}

double FormatFactor(const QString& format) {
    return std::pow(100.0, PatternReader(format).Read().percents);
}

} // namespace QmChart6

#include "qmchart/CellNumber.h"

#include <QByteArrayList>
#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace QmChart6 {

namespace {

constexpr qsizetype GroupDigits = 3;

/// Characters that group thousands wherever they are: blank, apostrophe, no-break and thin blanks,
/// typographic apostrophe.
constexpr std::array<std::string_view, 6> PlainGroups{
    " ", "'", "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x89", "\xE2\x80\x99"};
constexpr std::string_view MinusSign = "\xE2\x88\x92";

bool IsDigits(const QByteArray& text) {
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

QByteArray Bytes(std::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

/// The character that groups the whole part, "" where none does.
QByteArray GroupIn(const QByteArray& whole, const NumberStyle& style) {
    if (style.group != 0 && whole.contains(style.group)) return QByteArray(1, style.group);
    for (const std::string_view group : PlainGroups)
        if (whole.contains(Bytes(group))) return Bytes(group);
    return {};
}

/// Digits, in groups of three behind a first one of one to three that does not begin with 0.
std::optional<QByteArray> WholePart(const QByteArray& text, const NumberStyle& style) {
    const QByteArray group = GroupIn(text, style);
    if (group.isEmpty()) return IsDigits(text) ? std::optional(text) : std::nullopt;
    QByteArray digits;
    for (qsizetype start = 0; start <= text.size();) {
        const qsizetype found = text.indexOf(group, start);
        const qsizetype end = found < 0 ? text.size() : found;
        const QByteArray part = text.sliced(start, end - start);
        const bool fits =
            start == 0 ? part.size() <= GroupDigits && !part.startsWith('0') : part.size() == GroupDigits;
        if (!fits || !IsDigits(part)) return std::nullopt;
        digits += part;
        if (found < 0) break;
        start = end + group.size();
    }
    return digits;
}

/// Takes the exponent off: "e5" and the like, "" where there is none.
QByteArray TakeExponent(QByteArray& number) {
    const qsizetype place = number.toLower().indexOf('e');
    if (place < 0) return {};
    QByteArray exponent = number.sliced(place);
    number.truncate(place);
    return exponent;
}

bool IsExponent(const QByteArray& text) {
    const bool isSigned = text.size() > 1 && (text[1] == '+' || text[1] == '-');
    return text.isEmpty() || IsDigits(text.sliced(isSigned ? 2 : 1));
}

} // namespace

bool IsMissing(const QByteArray& cell) {
    static const QByteArrayList words{"", "na", "n/a", "nan", "null", "-"};
    return words.contains(cell.trimmed().toLower());
}

std::optional<double> NumberOfCell(const QByteArray& cell, const NumberStyle& style) {
    QByteArray number = cell.trimmed();
    QByteArray sign;
    if (number.startsWith('-') || number.startsWith('+')) {
        if (number.startsWith('-')) sign = "-";
        number.remove(0, 1);
    } else if (number.startsWith(Bytes(MinusSign))) {
        sign = "-";
        number.remove(0, static_cast<qsizetype>(MinusSign.size()));
    }
    const QByteArray exponent = TakeExponent(number);
    const qsizetype point = number.indexOf(style.decimal);
    const QByteArray decimals = point < 0 ? QByteArray() : number.sliced(point + 1);
    const QByteArray before = point < 0 ? number : number.first(point);
    if (!IsExponent(exponent) || (!decimals.isEmpty() && !IsDigits(decimals))) return std::nullopt;

    // "5." and ".5" are numbers, "." is none.
    const std::optional<QByteArray> whole =
        before.isEmpty() && !decimals.isEmpty() ? QByteArray("0") : WholePart(before, style);
    if (!whole) return std::nullopt;
    const QByteArray plain = sign + *whole + '.' + decimals + '0' + exponent;
    double value = 0;
    // Not QByteArray's own, which gives 0 for a number that is too large.
    if (std::from_chars(plain.begin(), plain.end(), value).ec != std::errc()) return std::nullopt;
    return value;
}

std::optional<DressedNumber> Undress(const QByteArray& cell) {
    // Most cells are plain, and tables are large.
    const bool plain = std::none_of(cell.begin(), cell.end(), [](char c) {
        return c == '%' || c == '(' || c == '$' || static_cast<signed char>(c) < 0;
    });
    if (plain) return std::nullopt;
    QString text = QString::fromUtf8(cell).trimmed();
    DressedNumber dressed;
    QString sign;
    const auto takeSign = [&] {
        if (!sign.isEmpty() || text.isEmpty() || !QStringLiteral(u"-+\u2212").contains(text.front())) return;
        sign = text.front();
        text = text.sliced(1).trimmed();
    };
    const auto takeBrackets = [&] {
        if (dressed.inBrackets || !sign.isEmpty() || !text.startsWith(u'(') || !text.endsWith(u')')) return;
        dressed.inBrackets = true;
        text = text.sliced(1, text.size() - 2).trimmed();
    };
    const auto takeUnit = [&](const QRegularExpression& place) {
        const QRegularExpressionMatch match = place.match(text);
        if (!dressed.unit.isEmpty() || !match.hasMatch()) return;
        dressed.unit = match.captured(1).toUtf8();
        text = text.remove(match.capturedStart(), match.capturedLength()).trimmed();
    };
    static const QRegularExpression before(QStringLiteral("^([A-Z]{0,3}\\p{Sc})"));
    static const QRegularExpression behind(QStringLiteral("([A-Z]{0,3}\\p{Sc}|%)$"));
    takeSign();
    takeBrackets();
    takeUnit(before);
    takeUnit(behind);
    takeSign();
    takeBrackets();
    if (dressed.unit.isEmpty() && !dressed.inBrackets) return std::nullopt;
    if (dressed.inBrackets) sign = QStringLiteral("-");
    dressed.number = (sign + text).toUtf8();
    return dressed;
}

void NumberStyleFinder::Look(const QByteArray& text) {
    const std::optional<DressedNumber> dressed = IsMissing(text) ? std::nullopt : Undress(text);
    const QByteArray& cell = dressed ? dressed->number : text;
    const bool asPoint = NumberOfCell(cell, {'.', ','}).has_value();
    const bool asComma = NumberOfCell(cell, {',', '.'}).has_value();
    if (asPoint && asComma) {
        mayHavePoint_ = mayHavePoint_ || cell.contains('.');
        mayHaveComma_ = mayHaveComma_ || cell.contains(',');
        if (openCell_.isEmpty() && (cell.contains('.') || cell.contains(','))) openCell_ = cell.trimmed();
    } else {
        needsPoint_ = needsPoint_ || asPoint;
        needsComma_ = needsComma_ || asComma;
    }
}

NumberStyle NumberStyleFinder::Style() const {
    if (needsPoint_ && needsComma_) return {'.', 0};
    if (needsPoint_) return {'.', ','};
    if (needsComma_) return {',', '.'};
    return {mayHaveComma_ && !mayHavePoint_ ? ',' : '.', 0};
}

} // namespace QmChart6

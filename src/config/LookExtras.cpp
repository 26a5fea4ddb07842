#include "config/LookExtras.h"

#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <cmath>

namespace QmChart6 {

namespace {

constexpr int LastAxisId = static_cast<int>(AxisId::Z);

struct ElementWord {
    ExtraOf of;
    QLatin1String name;
};
constexpr std::array ElementWords{ElementWord{ExtraOf::Chart, QLatin1String("Chart")},
                                  ElementWord{ExtraOf::Axis, QLatin1String("Axis")},
                                  ElementWord{ExtraOf::Series, QLatin1String("Series")}};

[[noreturn]] void RaiseNoElement(const QString& element) {
    throw RuntimeError(
        ErrorNumber::InvalidFileFormat,
        QStringLiteral("this is no look: an element beyond the stored fields is \"Chart\", \"Axis\", "
                       "\"Axis 0\" to \"Axis 3\", \"Series\" or \"Series 1\" and so on, not \"%1\"")
            .arg(element));
}

/// The number of a series or an axis behind its name; -1 where it is none.
int NumberBehind(const QString& text, ExtraOf of) {
    static const QRegularExpression plain(QStringLiteral("^(0|[1-9][0-9]{0,4})$"));
    if (!plain.match(text).hasMatch()) return -1;
    const int number = text.toInt();
    const bool fits =
        of == ExtraOf::Axis ? number <= LastAxisId : of == ExtraOf::Series && number >= 1 && number <= 32767;
    return fits ? number : -1;
}

QString InQuotes(const QString& text) {
    return u'"' + text + u'"';
}

/// What a field takes, in words.
QString Expected(const ExtraField& field) {
    if (std::holds_alternative<bool>(field.least)) return QStringLiteral("true or false");
    if (field.colour) return QStringLiteral("a colour as \"#rrggbb\"");
    if (std::holds_alternative<QString>(field.least)) return QStringLiteral("a text");
    const QString kind = field.whole ? QStringLiteral("a whole number") : QStringLiteral("a number");
    return QStringLiteral("%1 from %2 to %3").arg(kind, ExtraText(field.least), ExtraText(field.most));
}

bool IsWithin(const ExtraField& field, const ExtraValue& value) {
    if (const double* number = std::get_if<double>(&value))
        return *number >= std::get<double>(field.least) && *number <= std::get<double>(field.most) &&
               (!field.whole || std::trunc(*number) == *number);
    static const QRegularExpression colour(QStringLiteral("^#[0-9a-fA-F]{6}$"));
    return !field.colour || colour.match(std::get<QString>(value)).hasMatch();
}

QString Shown(const ExtraValue& value) {
    return std::holds_alternative<QString>(value) ? InQuotes(ExtraText(value)) : ExtraText(value);
}

[[noreturn]] void RaiseUnexpected(const ExtraKey& key, ErrorNumber number, const QString& got) {
    throw RuntimeError(number, QStringLiteral("\"%1\" of \"%2\" is %3, not %4")
                                   .arg(key.field, ElementText(key), Expected(ExtraFieldOf(key)), got));
}

const ExtraValue* FindSaid(const Extras& extras, int axis, const char* field) {
    const auto found = extras.find({ExtraOf::Axis, axis, QLatin1String(field)});
    return found == extras.end() ? nullptr : &found->second;
}

bool Says(const ExtraValue* value, bool truth) {
    return value != nullptr && std::get<bool>(*value) == truth;
}

/// What is wrong with the range that the look gives an axis, or all of them; null where nothing is.
const char* FaultOfRange(const Extras& extras, int axis) {
    const ExtraValue* least = FindSaid(extras, axis, "Minimum");
    const ExtraValue* most = FindSaid(extras, axis, "Maximum");
    if (least == nullptr && most == nullptr && FindSaid(extras, axis, "MajorDivision") == nullptr)
        return nullptr;
    if (!Says(FindSaid(extras, axis, "AutoScale"), false))
        return "\"Minimum\", \"Maximum\" and \"MajorDivision\" go with \"AutoScale\" false";
    const ValueScale plain;
    const double from = least == nullptr ? plain.Minimum : std::get<double>(*least);
    const double to = most == nullptr ? plain.Maximum : std::get<double>(*most);
    if (from >= to) return "\"Minimum\" is less than \"Maximum\"";
    if (Says(FindSaid(extras, axis, "Logarithmic"), true) && from <= 0)
        return "\"Minimum\" of a logarithmic axis is more than 0";
    return nullptr;
}

} // namespace

QString ElementText(const ExtraKey& key) {
    for (const ElementWord& one : ElementWords)
        if (one.of == key.of)
            return key.number == EveryOne ? QString(one.name)
                                          : QStringLiteral("%1 %2").arg(one.name).arg(key.number);
    return {};
}

ExtraKey ExtraKeyOf(const QString& element, const QString& field) {
    const qsizetype blank = element.indexOf(u' ');
    const QString name = blank < 0 ? element : element.first(blank);
    for (const ElementWord& one : ElementWords) {
        if (name != one.name) continue;
        const int number = blank < 0 ? EveryOne : NumberBehind(element.mid(blank + 1), one.of);
        if (blank >= 0 && number < 0) break;
        return {one.of, number, field};
    }
    RaiseNoElement(element);
}

const ExtraField& ExtraFieldOf(const ExtraKey& key) {
    QStringList names;
    for (const ExtraField& field : ExtraFields()) {
        if (field.of != key.of) continue;
        if (field.name == key.field) return field;
        names.append(field.name);
    }
    throw RuntimeError(ErrorNumber::FieldNotFound,
                       QStringLiteral("\"%1\" has no field \"%2\" beyond the stored ones; there are %3")
                           .arg(ElementText(key), key.field, names.join(QStringLiteral(", "))));
}

ExtraValue CheckedExtra(const ExtraKey& key, const ExtraValue& value) {
    const ExtraField& field = ExtraFieldOf(key);
    if (value.index() != field.least.index()) RaiseUnexpected(key, ErrorNumber::TypeMismatch, Shown(value));
    if (!std::holds_alternative<bool>(value) && !IsWithin(field, value))
        RaiseUnexpected(key, ErrorNumber::InvalidPropertyValue, Shown(value));
    return field.colour ? ExtraValue(std::get<QString>(value).toLower()) : value;
}

void RequireConsistent(const Extras& extras) {
    for (int axis = EveryOne; axis <= LastAxisId; ++axis)
        if (const char* fault = FaultOfRange(extras, axis))
            throw RuntimeError(ErrorNumber::InvalidPropertyValue,
                               QStringLiteral("\"%1\": %2")
                                   .arg(ElementText({ExtraOf::Axis, axis, {}}), QLatin1String(fault)));
}

QString ExtraText(const ExtraValue& value) {
    if (const bool* truth = std::get_if<bool>(&value))
        return *truth ? QStringLiteral("true") : QStringLiteral("false");
    if (const double* number = std::get_if<double>(&value))
        return QString::number(*number, 'g', QLocale::FloatingPointShortest);
    return std::get<QString>(value);
}

ExtraValue ExtraOfText(const ExtraKey& key, const QString& text) {
    const ExtraField& field = ExtraFieldOf(key);
    if (std::holds_alternative<QString>(field.least)) return CheckedExtra(key, text);
    if (std::holds_alternative<double>(field.least)) {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (isNumber && std::isfinite(number)) return CheckedExtra(key, number);
    } else if (text == QLatin1String("true") || text == QLatin1String("false")) {
        return text == QLatin1String("true");
    }
    RaiseUnexpected(key, ErrorNumber::TypeMismatch, InQuotes(text));
}

} // namespace QmChart6

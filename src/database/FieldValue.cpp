#include "database/FieldValue.h"

#include "qmchart6/RuntimeError.h"

#include <QVariant>

#include <cmath>
#include <limits>
#include <type_traits>

namespace QmChart6 {

namespace {

[[noreturn]] void RaiseMismatch(const QString& field, const char* wanted) {
    throw RuntimeError(ErrorNumber::TypeMismatch,
                       QStringLiteral("field \"%1\" holds %2").arg(field, QLatin1String(wanted)));
}

[[noreturn]] void RaiseOverflow(const QString& field, double number) {
    throw RuntimeError(ErrorNumber::Overflow,
                       QStringLiteral("field \"%1\" cannot hold %2").arg(field).arg(number));
}

template<class Whole>
Whole ToWhole(double number, const QString& field) {
    if (!(number >= std::numeric_limits<Whole>::min() && number <= std::numeric_limits<Whole>::max()))
        RaiseOverflow(field, number);
    if (number != std::floor(number)) RaiseMismatch(field, "whole numbers");
    return static_cast<Whole>(number);
}

float ToReal(double number, const QString& field) {
    // A server writes the greatest number a little greater than it is.
    const auto real = static_cast<float>(number);
    if (!std::isfinite(real)) RaiseOverflow(field, number);
    return real;
}

FieldValue ToTextKind(const QString& text, FieldKind kind, const QString& field) {
    if (kind != FieldKind::Text)
        RaiseMismatch(field, kind == FieldKind::Boolean ? "true or false" : "numbers");
    if (text.contains(QChar::Null) || !text.isValidUtf16())
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("field \"%1\" takes text without zero characters and without half "
                                          "characters")
                               .arg(field));
    return text;
}

FieldValue ToTruthKind(bool truth, FieldKind kind, const QString& field) {
    if (kind != FieldKind::Boolean) RaiseMismatch(field, kind == FieldKind::Text ? "text" : "numbers");
    return truth;
}

} // namespace

FieldValue NumberToKind(double number, FieldKind kind, const QString& field) {
    switch (kind) {
    case FieldKind::Text:
        RaiseMismatch(field, "text");
    case FieldKind::Boolean:
        RaiseMismatch(field, "true or false");
    case FieldKind::Integer:
        return ToWhole<std::int16_t>(number, field);
    case FieldKind::Long:
        return ToWhole<std::int32_t>(number, field);
    case FieldKind::Real:
        return ToReal(number, field);
    }
    RaiseMismatch(field, "another kind");
}

FieldValue ToKind(const FieldValue& value, FieldKind kind, const QString& field) {
    return std::visit(
        [&](const auto& held) -> FieldValue {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, QString>)
                return ToTextKind(held, kind, field);
            else if constexpr (std::is_same_v<Held, bool>)
                return ToTruthKind(held, kind, field);
            else
                return NumberToKind(static_cast<double>(held), kind, field);
        },
        value);
}

FieldValue FromDriver(const QVariant& stored, FieldKind kind, const QString& field) {
    if (stored.isNull())
        throw RuntimeError(ErrorNumber::InvalidUseOfNull, QStringLiteral("field \"%1\" is empty").arg(field));
    switch (stored.typeId()) {
    case QMetaType::QString:
        return ToTextKind(stored.toString(), kind, field);
    case QMetaType::Bool:
        return ToTruthKind(stored.toBool(), kind, field);
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        // An embedded file keeps truth as a number.
        if (kind == FieldKind::Boolean) return stored.toDouble() != 0;
        return NumberToKind(stored.toDouble(), kind, field);
    default:
        RaiseMismatch(field, "text, truth or numbers");
    }
}

QVariant ToDriver(const FieldValue& value) {
    return std::visit(
        [](const auto& held) -> QVariant {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, QString>)
                // A null text would become a missing value.
                return held.isNull() ? QVariant(QStringLiteral("")) : QVariant(held);
            else if constexpr (std::is_same_v<Held, bool>)
                return held;
            else if constexpr (std::is_same_v<Held, float>)
                return static_cast<double>(held);
            else
                return static_cast<int>(held);
        },
        value);
}

} // namespace QmChart6

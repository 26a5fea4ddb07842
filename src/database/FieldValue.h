#pragma once

#include <QString>

#include <cstdint>
#include <variant>

class QVariant;

namespace QmChart6 {

/// What a field of a table holds: text, true or false, a whole number of 16 or 32 bits, a single-precision
/// number.
enum class FieldKind { Text, Boolean, Integer, Long, Real };

using FieldValue = std::variant<QString, bool, std::int16_t, std::int32_t, float>;

/// The value as a field of that kind takes it. Numbers become each other where nothing is lost, otherwise
/// error 6; text and truth become nothing else, error 13; a number that is not finite is error 6. A text
/// holds no zero character and no half of a surrogate pair, error 5. `field` names it in the error.
[[nodiscard]] FieldValue ToKind(const FieldValue& value, FieldKind kind, const QString& field);
[[nodiscard]] FieldValue NumberToKind(double number, FieldKind kind, const QString& field);

/// What a database driver read from a field of that kind. Raises 94 (nothing there), 6 and 13.
[[nodiscard]] FieldValue FromDriver(const QVariant& stored, FieldKind kind, const QString& field);
[[nodiscard]] QVariant ToDriver(const FieldValue& value);

} // namespace QmChart6

#include "qmchart6/Variant.h"

#include "base/NumberText.h"

#include <cmath>
#include <limits>
#include <type_traits>

namespace QmChart6 {

namespace {

template<class T>
inline constexpr bool IsArray = false;
template<class T>
inline constexpr bool IsArray<Array<T>> = true;

[[noreturn]] void RaiseNull() {
    throw RuntimeError(ErrorNumber::InvalidUseOfNull, QStringLiteral("a value was expected, not Null"));
}

[[noreturn]] void RaiseArray() {
    throw RuntimeError(ErrorNumber::TypeMismatch, QStringLiteral("one value was expected, not an array"));
}

double NearestEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest != 0.5) return rest < 0.5 ? below : below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int16_t FittedInt16(double value) {
    const double whole = NearestEven(value);
    if (whole >= std::numeric_limits<std::int16_t>::min() &&
        whole <= std::numeric_limits<std::int16_t>::max())
        return static_cast<std::int16_t>(whole);
    throw RuntimeError(ErrorNumber::Overflow,
                       QStringLiteral("a number from -32768 to 32767 was expected, not %1").arg(value));
}

double FiniteCell(double value) {
    if (std::isinf(value))
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("a cell holds a finite number or none, not infinity"));
    return value;
}

} // namespace

std::int16_t Variant::ToInt16() const {
    return std::visit(
        [](const auto& value) -> std::int16_t {
            using T = std::decay_t<decltype(value)>;
            if constexpr (IsArray<T>)
                RaiseArray();
            else if constexpr (std::is_same_v<T, Null>)
                RaiseNull();
            else if constexpr (std::is_same_v<T, Empty>)
                return 0;
            else if constexpr (std::is_same_v<T, bool>)
                return static_cast<std::int16_t>(value ? -1
                                                       : 0); // all bits set, as a true 16-bit Boolean has
            else if constexpr (std::is_same_v<T, QString>)
                return FittedInt16(NumberOfText(value));
            else
                return FittedInt16(static_cast<double>(value));
        },
        value_);
}

double Variant::ToCell() const {
    return std::visit(
        [](const auto& value) -> double {
            using T = std::decay_t<decltype(value)>;
            if constexpr (IsArray<T>)
                RaiseArray();
            else if constexpr (std::is_same_v<T, Null>)
                RaiseNull();
            else if constexpr (std::is_same_v<T, Empty>)
                return std::numeric_limits<double>::quiet_NaN();
            else if constexpr (std::is_same_v<T, bool>)
                throw RuntimeError(ErrorNumber::TypeMismatch,
                                   QStringLiteral("a number was expected, not a truth value"));
            else if constexpr (std::is_same_v<T, QString>)
                return NumberOfText(value);
            else if constexpr (std::is_floating_point_v<T>)
                return FiniteCell(RoundedAsText(value));
            else
                return static_cast<double>(value);
        },
        value_);
}

QString Variant::ToText() const {
    return std::visit(
        [](const auto& value) -> QString {
            using T = std::decay_t<decltype(value)>;
            if constexpr (IsArray<T>)
                RaiseArray();
            else if constexpr (std::is_same_v<T, Null>)
                RaiseNull();
            else if constexpr (std::is_same_v<T, Empty>)
                return {};
            else if constexpr (std::is_same_v<T, bool>)
                return value ? QStringLiteral("True") : QStringLiteral("False");
            else if constexpr (std::is_same_v<T, QString>)
                return value;
            else if constexpr (std::is_same_v<T, double>)
                return TextOfDouble(value);
            else if constexpr (std::is_same_v<T, float>)
                return TextOfSingle(value);
            else
                return QString::number(value);
        },
        value_);
}

} // namespace QmChart6

#pragma once

#include "qmchart6/Array.h"

#include <QString>

#include <cstdint>
#include <variant>

namespace QmChart6 {

class Variant;

/// No value at all: a missing cell.
struct Empty {
    friend bool operator==(Empty, Empty) { return true; }
};
/// A value known to be absent, which no number can be made of (error 94).
struct Null {
    friend bool operator==(Null, Null) { return true; }
};

/// One value of any of the kinds that a host may pass, tables of numbers included.
class QMCHART6_EXPORT Variant {
public:
    using Value = std::variant<Empty, Null, bool, std::uint8_t, std::int16_t, std::int32_t, std::int64_t,
                               float, double, QString, Array<std::int16_t>, Array<std::int32_t>, Array<float>,
                               Array<double>, Array<QString>, Array<Variant>>;

    Variant() = default;
    template<class T>
    Variant(T value)
        : value_(std::move(value)) {} // NOLINT(google-explicit-constructor): a Variant is any value

    [[nodiscard]] const Value& Get() const { return value_; }

    /// The value as a 16-bit integer, halves rounded to the even neighbour.
    /// Raises 6 (does not fit), 13 (text that is no number, an array) or 94 (Null); Empty gives 0, true -1.
    [[nodiscard]] std::int16_t ToInt16() const;

    /// The value as the number of a data cell: not-a-number for Empty (a missing value), otherwise the number
    /// that is left when the value crosses as text (15 significant digits, 7 for a single).
    /// Raises 6 (text of a number too large), 13 (text that is no number, a truth value, infinity, an array)
    /// or 94 (Null).
    [[nodiscard]] double ToCell() const;

    /// The value as text in the current locale; "" for Empty. Raises 13 (an array) or 94 (Null).
    [[nodiscard]] QString ToText() const;

private:
    Value value_;
};

} // namespace QmChart6

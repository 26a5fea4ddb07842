#include "chart/ValueLabelFormat.h"

#include "base/NumberText.h"
#include "base/ProcessState.h"

#include <type_traits>

namespace QmChart6 {

namespace {

bool HoldsPoint(const QString& text) {
    return text.contains(u'.');
}
bool HoldsPoint(const Variant& value) {
    return HoldsPoint(value.ToText());
}
bool HoldsPoint(double value) {
    return TextHoldsPoint(value);
}
bool HoldsPoint(float value) {
    return TextHoldsPoint(value);
}

/// Whether no element of the kind can hold a point, so that the table's bounds are all there is to look at.
template<class T>
bool NeverHoldsPoint() {
    if constexpr (std::is_integral_v<T>)
        return true;
    else if constexpr (std::is_floating_point_v<T>)
        return DecimalSeparator() != u'.';
    else
        return false;
}

template<class T>
bool HoldsDecimals(const Array<T>& table, int rows, int columns) {
    if (NeverHoldsPoint<T>()) {
        // The first element outside is the first one missing in row 1, or the first row that is missing.
        if (rows <= 0 || columns <= 0) return false;
        for (int column = 1; column <= columns; ++column) static_cast<void>(table.At(1, column));
        for (int row = 1; row <= rows; ++row) static_cast<void>(table.At(row, 1));
        return false;
    }
    if constexpr (!std::is_integral_v<T>)
        for (int row = 1; row <= rows; ++row)
            for (int column = 1; column <= columns; ++column)
                if (HoldsPoint(table.At(row, column))) return true;
    return false;
}

template<class T>
inline constexpr bool IsArray = false;
template<class T>
inline constexpr bool IsArray<Array<T>> = true;

bool HoldsDecimals(const Variant& data, int rows, int columns) {
    return std::visit(
        [&](const auto& value) -> bool {
            if constexpr (IsArray<std::decay_t<decltype(value)>>)
                return HoldsDecimals(value, rows, columns);
            else
                throw RuntimeError(ErrorNumber::TypeMismatch,
                                   QStringLiteral("the data is a table of rows and columns"));
        },
        data.Get());
}

} // namespace

const QString& ValueLabelFormat() {
    static const QString general;
    return Process().formatsFollowData ? general : Process().valueLabelFormat;
}

void LetFormatsFollowData(bool on) {
    Process().formatsFollowData = on;
}

void ComputeValueLabelFormat(const Variant& Data, int Rows, int Columns) {
    Process().valueLabelFormat = QStringLiteral("0");
    if (!HoldsDecimals(Data, Rows, Columns)) return;
    const QString half = TextOfSingle(1.0F / 2).trimmed();
    Process().valueLabelFormat = QStringLiteral("0") + half.at(1) + QStringLiteral("00");
}

} // namespace QmChart6

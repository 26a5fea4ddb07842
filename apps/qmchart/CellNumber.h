#pragma once

#include <QByteArray>

#include <optional>

namespace QmChart6 {

/// How the numbers of a table are written. Blanks and apostrophes that group thousands are known in any.
struct NumberStyle {
    char decimal = '.';
    char group = ','; ///< 0: no character beside the above groups thousands
};

/// Whether a cell says that its value is missing: empty, NA, N/A, NaN, null or -, in any case.
bool IsMissing(const QByteArray& cell);

/// The number that a cell stands for: sign, digits (in groups of three or not), decimals, exponent. Nothing
/// where it is no such number, or one beyond what a double holds.
std::optional<double> NumberOfCell(const QByteArray& cell, const NumberStyle& style);

/// Gathers what the cells of a table tell about how its numbers are written.
class NumberStyleFinder {
public:
    void Look(const QByteArray& cell);

    /// The decimal comma only where cells need it and none contradicts. 1.234 alone has a decimal point and
    /// 1,234 alone a decimal comma: thousands are grouped only in tables where other cells show it.
    [[nodiscard]] NumberStyle Style() const;

private:
    bool needsPoint_ = false;
    bool needsComma_ = false;
    bool mayHavePoint_ = false;
    bool mayHaveComma_ = false;
};

} // namespace QmChart6

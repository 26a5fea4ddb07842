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

/// A number with what stands around it: a unit ("%", "€", "US$") before or behind it, and brackets in place
/// of a minus, as in (12).
struct DressedNumber {
    QByteArray number; ///< with its sign
    QByteArray unit;
    bool inBrackets = false;
};
/// Nothing where a cell has nothing of this kind around it. 45% is 45.
std::optional<DressedNumber> Undress(const QByteArray& cell);

/// Gathers what the cells of a table tell about how its numbers are written.
class NumberStyleFinder {
public:
    void Look(const QByteArray& text);

    /// The decimal comma only where cells need it and none contradicts. 1.234 alone has a decimal point and
    /// 1,234 alone a decimal comma: thousands are grouped only in tables where other cells show it.
    [[nodiscard]] NumberStyle Style() const;
    /// Whether the cells leave it open: some are like 1.234, and none shows what its point is.
    [[nodiscard]] bool IsOpen() const {
        return !needsPoint_ && !needsComma_ && (mayHavePoint_ || mayHaveComma_);
    }
    /// A cell that leaves it open.
    [[nodiscard]] const QByteArray& OpenCell() const { return openCell_; }

private:
    bool needsPoint_ = false;
    bool needsComma_ = false;
    bool mayHavePoint_ = false;
    bool mayHaveComma_ = false;
    QByteArray openCell_;
};

} // namespace QmChart6

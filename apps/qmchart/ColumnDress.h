#pragma once

#include "qmchart/CellNumber.h"

#include <optional>

namespace QmChart6 {

/// How the numbers of one column are dressed, which is alike in all of them.
class ColumnDress {
public:
    struct Cell {
        QByteArray cell;
        int line = 0;
    };

    /// Takes a number in; gives an earlier cell that it differs from in its unit, or in how what is negative
    /// is written.
    std::optional<Cell> Differs(const DressedNumber& number, double value, const QByteArray& cell, int line);

    /// "" for none.
    [[nodiscard]] QByteArray Unit() const { return unit_.value_or(QByteArray()); }

private:
    std::optional<QByteArray> unit_;
    Cell unitOf_;
    std::optional<bool> brackets_; ///< where something was negative
    Cell negative_;
};

} // namespace QmChart6

#include "qmchart/ColumnDress.h"

namespace QmChart6 {

std::optional<ColumnDress::Cell> ColumnDress::Differs(const DressedNumber& number, double value,
                                                      const QByteArray& cell, int line) {
    if (!unit_) {
        unit_ = number.unit;
        unitOf_ = {cell, line};
    }
    if (*unit_ != number.unit) return unitOf_;
    if (!(value < 0)) return std::nullopt;
    if (!brackets_) {
        brackets_ = number.inBrackets;
        negative_ = {cell, line};
    }
    return *brackets_ == number.inBrackets ? std::nullopt : std::optional(negative_);
}

} // namespace QmChart6

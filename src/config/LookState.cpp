#include "config/LookState.h"

namespace QmChart6 {

namespace {

/// The look in one window and with one current cell, whichever it has.
LookState WithoutPlace(LookState look) {
    const LookState any;
    look.maximized = any.maximized;
    look.width = any.width;
    look.height = any.height;
    look.chart.Row = any.chart.Row;
    look.chart.Column = any.chart.Column;
    return look;
}

} // namespace

bool LookAlike(const LookState& one, const LookState& other) {
    return WithoutPlace(one) == WithoutPlace(other);
}

} // namespace QmChart6

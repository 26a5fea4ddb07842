#include "chartcontrol/model/Axis.h"

namespace QmChart6 {

namespace {

void RequireFirst(int level) {
    if (level != 1)
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("an axis has one level of labels, not %1").arg(level));
}

} // namespace

AxisLabels& AxisLabelLevels::Item(int level) {
    RequireFirst(level);
    return first_;
}

const AxisLabels& AxisLabelLevels::Item(int level) const {
    RequireFirst(level);
    return first_;
}

} // namespace QmChart6

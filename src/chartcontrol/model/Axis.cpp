#include "chartcontrol/model/Axis.h"

namespace QmChart6 {

AxisLabels& AxisLabelLevels::Item(int level) {
    if (level != 1)
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("an axis has one level of labels, not %1").arg(level));
    return first_;
}

const AxisLabels& AxisLabelLevels::Item(int level) const {
    return const_cast<AxisLabelLevels*>(this)->Item(level); // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

} // namespace QmChart6

#include "chartcontrol/model/Series.h"

namespace QmChart6 {

namespace {

void RequirePointIndex(int index) {
    if (index != DataPoints::All && index < 1)
        throw RuntimeError(
            ErrorNumber::SubscriptOutOfRange,
            QStringLiteral("a data point is numbered from 1 (-1 is all of them), not %1").arg(index));
}

} // namespace

DataPoint& DataPoints::Item(int index) {
    RequirePointIndex(index);
    if (index == All) return all_;
    return own_.try_emplace(index, all_).first->second;
}

const DataPoint& DataPoints::Item(int index) const {
    RequirePointIndex(index);
    const auto own = index == All ? own_.end() : own_.find(index);
    return own == own_.end() ? all_ : own->second;
}

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/data/PlottedValues.h"
#include "chartcontrol/scale/ValueRange.h"

namespace QmChart6 {

/// What the data labels of an axis' series take beyond the marks, in points.
struct HeadRoom {
    double above = 0;
    double below = 0;
};

/// The room for labels of the series that stand on the axis.
HeadRoom HeadRoomOf(const LayoutContext& context, const PlottedValues& plotted, bool secondary);

/// The range, grown so that on an axis of that length (points) the extremes have their labels within the
/// plot.
ValueRange WithHeadRoom(const ValueRange& range, const HeadRoom& room, bool keepZero, double length);

} // namespace QmChart6

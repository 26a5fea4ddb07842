#pragma once

#include "chartcontrol/layout/axes/ValueAxis.h"
#include "chartcontrol/layout/data/PlottedValues.h"

namespace QmChart6 {

/// What the data labels of an axis' series take beyond the marks, in points.
struct HeadRoom {
    double above = 0;
    double below = 0;
};

/// The room for labels of the series that stand on the axis.
HeadRoom HeadRoomOf(const LayoutContext& context, const PlottedValues& plotted, bool secondary);

/// The demand, its range grown so that on an axis of that length (points) the extremes have their labels
/// within the plot.
AxisDemand WithHeadRoom(const AxisDemand& demand, const HeadRoom& room, bool keepZero, double length);

} // namespace QmChart6

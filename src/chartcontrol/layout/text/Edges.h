#pragma once

#include "chartcontrol/scene/Scene.h"

namespace QmChart6 {

// Cutting room off the box that is still free.

/// Which side of the chart a location stands at; corners stand at the left or the right.
enum class Side { Top, Bottom, Left, Right };
Side SideOf(LocationType location);

/// Takes `depth` off a side of the free box, and `gap` more that stays empty; gives the part that was cut
/// off.
Box CutOff(Box& free, Side side, double depth, double gap);

/// The box moved so that it lies within the room; at the room's left and upper edges where it is larger.
Box MovedInto(const Box& room, const Box& box);

} // namespace QmChart6

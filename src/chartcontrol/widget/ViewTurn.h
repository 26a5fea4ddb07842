#pragma once

#include "chartcontrol/model/Plot.h"

namespace QmChart6 {

/// The view of a 3D chart after it was dragged by so many logical pixels, half a degree to each: what is in
/// front follows the pointer. The rotation stays from 0 up to a full turn, the elevation within a right angle
/// up and down, both in the unit.
View3d TurnedView(const View3d& view, AngleUnit unit, double right, double down);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/space/SpacePlaces.h"

namespace QmChart6 {

/// Lays out a 3D plot within a box: walls and floor, grid, marks, axis labels and titles, data labels.
SpacePlaces LayOutSpace(const LayoutContext& context, const Box& box);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/pie/PiePlaces.h"

namespace QmChart6 {

/// The pies of all categories in a grid. Gives where their slices are.
PiePlaces LayOutPies(const LayoutContext& context, const Box& box);

} // namespace QmChart6

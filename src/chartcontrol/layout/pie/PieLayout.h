#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"

namespace QmChart6 {

/// The pies of all categories in a grid.
void LayOutPies(const LayoutContext& context, const Box& box);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"

namespace QmChart6 {

/// Lays out the legend in a cell of its own and takes the cell off the free box; one with a place of its own
/// takes none. Entries wrap into columns, long names are elided, and where not all entries fit the last tells
/// how many are missing. Whoever calls decides whether there is one.
void LayOutLegend(const LayoutContext& context, Box& free);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"

namespace QmChart6 {

/// Lays out the chart's title or footnote and takes its room off the free box; of those with a
/// place of their own, only one that stands right at a side takes room.
void LayOutTitle(const LayoutContext& context, const Title& title, PartCode code, Box& free);

} // namespace QmChart6

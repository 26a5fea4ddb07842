#pragma once

#include "chartcontrol/layout/LayoutContext.h"

namespace QmChart6 {

/// Lays out the chart's title or footnote and takes its room off the free box; one with a place of its own
/// takes none.
void LayOutTitle(const LayoutContext& context, const Title& title, PartCode code, Box& free);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"

namespace QmChart6 {

/// The fill and frame of a part within a box.
void LayOutBackdrop(SceneBuilder& builder, Part part, const Backdrop& backdrop, const Box& box);

/// How deep a frame reaches into its box.
double FrameDepth(const Frame& frame);

} // namespace QmChart6

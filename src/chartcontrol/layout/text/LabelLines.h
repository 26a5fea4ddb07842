#pragma once

#include "chartcontrol/scene/SceneBuilder.h"

namespace QmChart6 {

/// The line that leads from a mark to its label: straight, or bent so that it reaches the label level.
void AddLabelLine(SceneBuilder& builder, Part part, LabelLineStyle style, Point from, const Box& label,
                  Colour colour);

} // namespace QmChart6

#pragma once

#include "chartcontrol/scene/SceneBuilder.h"

#include <span>
#include <vector>

namespace QmChart6 {

/// The way of the line that leads from a mark to its label: straight, or bent so that it reaches the label
/// level. Empty for no line.
std::vector<Point> LabelLine(LabelLineStyle style, Point from, const Box& label);

/// Draws a way that LabelLine told.
void AddLabelLine(SceneBuilder& builder, Part part, std::span<const Point> way, Colour colour);

} // namespace QmChart6

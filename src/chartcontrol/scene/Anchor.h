#pragma once

#include "chartcontrol/scene/Scene.h"

namespace QmChart6 {

/// The place that stands for a shape: the middle of a box, the corners' mean of a polygon, a slice's middle,
/// the middle point of a line or run.
Point AnchorOf(const Scene& scene, const Shape& shape);

} // namespace QmChart6

#pragma once

#include "chartcontrol/scene/Scene.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace QmChart6 {

/// Whether what the shape draws covers the point: bounds first, then the clip, then the exact shape. `slack`
/// (points) widens lines and markers so that thin ones can be met. A rectangle with neither fill nor stroke
/// is there to be met, anywhere inside.
bool Covers(const Scene& scene, const Shape& shape, Point point, double slack = 2);

/// The index of the topmost shape that covers the point.
std::optional<std::size_t> Hit(const Scene& scene, Point point, double slack = 2);

/// The box round all shapes that show a part; nothing where there are none. AnyIndex stands for any.
std::optional<Box> BoundsOf(const Scene& scene, Part part);

/// The indexes of the shapes that show a part; AnyIndex as index1 or index2 stands for any.
std::vector<std::size_t> Find(const Scene& scene, Part part);

} // namespace QmChart6

#pragma once

#include "chartcontrol/paint/PaintTarget.h"
#include "chartcontrol/scene/Scene.h"

class QPainter;

namespace QmChart6 {

/// Paints a scene with its top left corner at the painter's origin. `scale` is device units to a point.
/// Raster antialiases and moves crisp shapes onto whole device pixels; Vector leaves every coordinate as it
/// is.
void PaintScene(const Scene& scene, QPainter& painter, double scale, PaintTarget target);

} // namespace QmChart6

#pragma once

#include "chartcontrol/scene/Scene.h"

namespace QmChart6 {

/// One picture of all there is to draw: brushes, markers, pens, texts at angles, slices and clips.
Scene GalleryScene();

} // namespace QmChart6

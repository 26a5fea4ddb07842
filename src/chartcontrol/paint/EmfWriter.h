#pragma once

#include "chartcontrol/scene/Scene.h"
#include "chartcontrol/scene/TextMeasurer.h"

#include <QByteArray>

namespace QmChart6 {

/// The scene as an enhanced metafile (EMF). Dashes, patterns, slices and markers are geometry, text is text
/// with its advances measured, but for outlined letters, which are their outlines.
QByteArray EncodeEmf(const Scene& scene, const TextMeasurer& measurer);

} // namespace QmChart6

#pragma once

#include "chartcontrol/scene/Scene.h"

#include <QByteArray>
#include <QImage>

namespace QmChart6 {

/// The scene on white, `scale` device pixels to a logical pixel, the image's resolution set to match. Raises
/// error 5 for a scene without room or an image too large to hold.
QImage ImageOfScene(const Scene& scene, double scale);

/// A PNG, its physical size told.
QByteArray EncodePng(const QImage& image);

/// An uncompressed BMP of 24 bits to a pixel.
QByteArray EncodeBmp(const QImage& image);

} // namespace QmChart6

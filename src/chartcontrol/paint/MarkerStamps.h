#pragma once

#include "chartcontrol/scene/Scene.h"

#include <QImage>
#include <QPainterPath>
#include <QPen>

#include <array>

class QPainter;

namespace QmChart6 {

/// One marker drawn once for each quarter of a pixel that it may fall on, and stamped from there on. For runs
/// of many markers on a raster.
class MarkerStamps {
public:
    /// `shape` lies round the origin, in painter units; `pixelRatio` is device pixels to a painter unit.
    MarkerStamps(QPainterPath shape, const QBrush& fill, const QPen& stroke, double pixelRatio);

    /// Stamps the marker with its middle at `center` (painter units). The painter is not turned.
    void Stamp(QPainter& painter, QPointF center);

private:
    static constexpr int Phases = 4;

    QImage& ImageOf(int phaseX, int phaseY);

    QPainterPath shape_;
    QBrush fill_;
    QPen stroke_;
    double pixelRatio_;
    int side_; // pixels of an image, its middle the marker's
    std::array<QImage, static_cast<std::size_t>(Phases* Phases)> images_;
};

} // namespace QmChart6

#pragma once

#include "chartcontrol/scene/Scene.h"

#include "chartcontrol/paint/PixelTarget.h"

#include <QImage>
#include <QPainterPath>
#include <QPen>

#include <array>
#include <vector>

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
    /// The same straight into the pixels, `center` in device pixels; very many are best given whole ones and
    /// a half.
    void Stamp(PixelTarget& pixels, QPointF center);
    /// A small marker on the middle of the pixel that holds `center`, without antialiasing: for clouds in
    /// which nobody sees its edges.
    void StampPlain(PixelTarget& pixels, QPointF center);
    /// Whether markers of this size may be stamped plainly.
    [[nodiscard]] bool IsSmall() const { return side_ <= 8; }

private:
    static constexpr int Phases = 4;

    /// A drawn marker, the part of its image that is not empty, and whether that is one colour without
    /// antialiased edges.
    struct Drawn {
        QImage image;
        QRect used;
        bool solid = false;
    };

    Drawn& DrawnAt(int phaseX, int phaseY);
    void Look(Drawn& drawn) const;
    void MakePlain();

    QPainterPath shape_;
    QBrush fill_;
    QPen stroke_;
    double pixelRatio_;
    /// A row of a plain marker: pixels from its middle.
    struct Row {
        int y = 0;
        int left = 0;
        int right = 0;
    };

    std::vector<Row> plain_;
    QRgb plainColour_ = 0;
    int side_; // pixels of an image, its middle the marker's
    std::array<Drawn, static_cast<std::size_t>(Phases* Phases)> images_;
};

} // namespace QmChart6

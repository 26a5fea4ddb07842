#pragma once

#include "chartcontrol/scene/Scene.h"

#include <QRect>
#include <QRgb>

#include <cstddef>
#include <optional>

class QImage;
class QPainter;

namespace QmChart6 {

/// The pixels of the image behind a painter, for marks that are drawn straight into them because there are so
/// many. Colours are opaque; what lies outside the clip is not touched.
class PixelTarget {
public:
    /// None where the painter does not draw into an image of 32 bits, is turned, has a clip or is not opaque.
    /// `unit` is painter units to a point.
    static std::optional<PixelTarget> Of(QPainter& painter, double unit);

    /// Only pixels within these, device coordinates, are drawn from here on.
    void SetClip(const QRect& clip);
    [[nodiscard]] const QRect& Clip() const { return clip_; }
    [[nodiscard]] QRect Whole() const { return {0, 0, width_, height_}; }

    /// A point of the scene in device pixels.
    [[nodiscard]] double DeviceX(double x) const { return x * scaleX_ + offsetX_; }
    [[nodiscard]] double DeviceY(double y) const { return y * scaleY_ + offsetY_; }
    /// Device pixels to a point.
    [[nodiscard]] double Scale() const { return scaleX_; }

    [[nodiscard]] QRgb* Line(int y) { return pixels_ + static_cast<std::ptrdiff_t>(y) * stride_; }

    /// Lays the part `used` of a premultiplied image over the pixels, the image's top left corner at a device
    /// pixel.
    void Stamp(const QImage& image, const QRect& used, int left, int top);
    void Fill(const QRect& rect, QRgb colour);

private:
    PixelTarget() = default;

    QRgb* pixels_ = nullptr;
    std::ptrdiff_t stride_ = 0; // pixels
    int width_ = 0;
    int height_ = 0;
    QRect clip_;
    double scaleX_ = 1;
    double scaleY_ = 1;
    double offsetX_ = 0;
    double offsetY_ = 0;
};

/// The colour mixed into a pixel; `coverage` from 0 (the pixel stays) to 256 (the colour covers it).
inline QRgb Mixed(QRgb pixel, QRgb colour, unsigned coverage) {
    // Two channels at a time: red and blue, then green; the highest bits stay for the alpha of an opaque
    // image.
    const unsigned rest = 256 - coverage;
    const unsigned redBlue = ((pixel & 0xff00ff) * rest + (colour & 0xff00ff) * coverage) >> 8 & 0xff00ff;
    const unsigned green = ((pixel & 0x00ff00) * rest + (colour & 0x00ff00) * coverage) >> 8 & 0x00ff00;
    return 0xff000000 | redBlue | green;
}

} // namespace QmChart6

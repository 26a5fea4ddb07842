#include "chartcontrol/paint/PixelTarget.h"

#include <QImage>
#include <QPainter>

#include <algorithm>

namespace QmChart6 {

std::optional<PixelTarget> PixelTarget::Of(QPainter& painter, double unit) {
    QPaintDevice* device = painter.device();
    if (device == nullptr || device->devType() != QInternal::Image) return {};
    auto* image = static_cast<QImage*>(device);
    const bool format = image->format() == QImage::Format_RGB32;
    const QTransform toDevice = painter.deviceTransform();
    const bool upright = toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0 && toDevice.m22() > 0;
    const bool plain = !painter.hasClipping() && painter.opacity() == 1 &&
                       painter.compositionMode() == QPainter::CompositionMode_SourceOver;
    if (!format || !upright || !plain) return {};
    PixelTarget target;
    // An image that is painted on shares its pixels with no other, so these are the ones that the painter
    // draws into.
    target.pixels_ = reinterpret_cast<QRgb*>(image->bits());
    target.stride_ = image->bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
    target.width_ = image->width();
    target.height_ = image->height();
    target.clip_ = target.Whole();
    target.scaleX_ = unit * toDevice.m11();
    target.scaleY_ = unit * toDevice.m22();
    target.offsetX_ = toDevice.dx();
    target.offsetY_ = toDevice.dy();
    return target;
}

void PixelTarget::SetClip(const QRect& clip) {
    clip_ = clip.intersected(Whole());
}

void PixelTarget::Fill(const QRect& rect, QRgb colour) {
    const QRect inside = rect.intersected(clip_);
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        std::fill_n(Line(y) + inside.left(), inside.width(), colour);
}

void PixelTarget::Stamp(const QImage& image, const QRect& used, int left, int top) {
    const int firstX = std::max(left + used.left(), clip_.left());
    const int firstY = std::max(top + used.top(), clip_.top());
    const int endX = std::min(left + used.right(), clip_.right()) + 1;
    const int endY = std::min(top + used.bottom(), clip_.bottom()) + 1;
    for (int y = firstY; y < endY; ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(y - top)) - left;
        QRgb* to = Line(y);
        for (int x = firstX; x < endX; ++x) {
            const auto alpha = static_cast<unsigned>(qAlpha(from[x]));
            if (alpha == 0) continue;
            if (alpha == 255) {
                to[x] = from[x];
                continue;
            }
            const unsigned rest = 256 - alpha;
            const unsigned redBlue = ((to[x] & 0xff00ff) * rest >> 8 & 0xff00ff) + (from[x] & 0xff00ff);
            const unsigned green = ((to[x] & 0x00ff00) * rest >> 8 & 0x00ff00) + (from[x] & 0x00ff00);
            to[x] = 0xff000000 | (redBlue & 0xff00ff) | (green & 0x00ff00);
        }
    }
}

} // namespace QmChart6

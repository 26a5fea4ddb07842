#include "chartcontrol/paint/MarkerStamps.h"

#include <QPainter>

#include <cmath>

namespace QmChart6 {

MarkerStamps::MarkerStamps(QPainterPath shape, const QBrush& fill, const QPen& stroke, double pixelRatio)
    : shape_(std::move(shape)), fill_(fill), stroke_(stroke), pixelRatio_(pixelRatio) {
    const QRectF bounds = shape_.boundingRect();
    const double stroked = stroke_.style() == Qt::NoPen ? 0 : stroke_.widthF();
    const double reach = (std::max(bounds.width(), bounds.height()) + stroked) / 2;
    side_ = 2 * static_cast<int>(std::ceil(reach * pixelRatio_ + 1));
}

void MarkerStamps::Stamp(QPainter& painter, QPointF center) {
    // The phase is taken on the painter's own grid, which is the device's but for a shift that all share.
    const double x = center.x() * pixelRatio_;
    const double y = center.y() * pixelRatio_;
    const double quarterX = std::floor(x * Phases + 0.5);
    const double quarterY = std::floor(y * Phases + 0.5);
    const double wholeX = std::floor(quarterX / Phases);
    const double wholeY = std::floor(quarterY / Phases);
    const QImage& image =
        ImageOf(static_cast<int>(quarterX - wholeX * Phases), static_cast<int>(quarterY - wholeY * Phases));
    const double half = side_ / 2.0;
    painter.drawImage(QPointF((wholeX - half) / pixelRatio_, (wholeY - half) / pixelRatio_), image);
}

QImage& MarkerStamps::ImageOf(int phaseX, int phaseY) {
    QImage& image = images_[static_cast<std::size_t>(phaseY * Phases + phaseX)];
    if (!image.isNull()) return image;
    image = QImage(side_, side_, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(side_ / 2.0 + static_cast<double>(phaseX) / Phases,
                      side_ / 2.0 + static_cast<double>(phaseY) / Phases);
    painter.scale(pixelRatio_, pixelRatio_);
    painter.setBrush(fill_);
    painter.setPen(stroke_);
    painter.drawPath(shape_);
    painter.end();
    image.setDevicePixelRatio(pixelRatio_);
    return image;
}

} // namespace QmChart6

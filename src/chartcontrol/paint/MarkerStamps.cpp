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
        DrawnAt(static_cast<int>(quarterX - wholeX * Phases), static_cast<int>(quarterY - wholeY * Phases))
            .image;
    const double half = side_ / 2.0;
    painter.drawImage(QPointF((wholeX - half) / pixelRatio_, (wholeY - half) / pixelRatio_), image);
}

void MarkerStamps::Stamp(PixelTarget& pixels, QPointF center) {
    const int quarterX = static_cast<int>(std::floor(center.x() * Phases + 0.5));
    const int quarterY = static_cast<int>(std::floor(center.y() * Phases + 0.5));
    // Phases is a power of two: the mask is the remainder, for negative places too.
    const Drawn& drawn = DrawnAt(quarterX & (Phases - 1), quarterY & (Phases - 1));
    const int left = (quarterX >> 2) - side_ / 2;
    const int top = (quarterY >> 2) - side_ / 2;
    if (drawn.solid)
        pixels.Fill(drawn.used.translated(left, top), drawn.image.pixel(drawn.used.topLeft()));
    else
        pixels.Stamp(drawn.image, drawn.used, left, top);
}

void MarkerStamps::StampPlain(PixelTarget& pixels, QPointF center) {
    if (plain_.empty()) MakePlain();
    const int x = static_cast<int>(std::floor(center.x()));
    const int y = static_cast<int>(std::floor(center.y()));
    const QRect& clip = pixels.Clip();
    const int reach = side_ / 2;
    if (x - reach < clip.left() || x + reach > clip.right() || y - reach < clip.top() ||
        y + reach > clip.bottom()) {
        for (const Row& row : plain_)
            pixels.Fill(QRect(QPoint(x + row.left, y + row.y), QPoint(x + row.right, y + row.y)),
                        plainColour_);
        return;
    }
    for (const Row& row : plain_) {
        QRgb* line = pixels.Line(y + row.y) + x;
        for (int at = row.left; at <= row.right; ++at) line[at] = plainColour_;
    }
}

/// The rows of the marker on the middle of a pixel: where it covers at least half of one.
void MarkerStamps::MakePlain() {
    constexpr int middle = Phases / 2;
    constexpr int half = 128;
    const QImage& image = DrawnAt(middle, middle).image;
    plainColour_ = (fill_.style() == Qt::NoBrush ? stroke_.color() : fill_.color()).rgb();
    for (int y = 0; y < side_; ++y) {
        int left = side_;
        int right = -1;
        for (int x = 0; x < side_; ++x) {
            if (qAlpha(image.pixel(x, y)) < half) continue;
            left = std::min(left, x);
            right = x;
        }
        if (right >= 0) plain_.push_back({y - side_ / 2, left - side_ / 2, right - side_ / 2});
    }
    if (plain_.empty()) plain_.push_back({0, 0, 0});
}

MarkerStamps::Drawn& MarkerStamps::DrawnAt(int phaseX, int phaseY) {
    Drawn& drawn = images_[static_cast<std::size_t>(phaseY * Phases + phaseX)];
    QImage& image = drawn.image;
    if (!image.isNull()) return drawn;
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
    Look(drawn);
    return drawn;
}

void MarkerStamps::Look(Drawn& drawn) const {
    drawn.used = {};
    for (int y = 0; y < side_; ++y)
        for (int x = 0; x < side_; ++x)
            if (qAlpha(drawn.image.pixel(x, y)) != 0) drawn.used |= QRect(x, y, 1, 1);
    drawn.solid = !drawn.used.isEmpty();
    const QRgb colour = drawn.solid ? drawn.image.pixel(drawn.used.topLeft()) : 0;
    for (int y = drawn.used.top(); y <= drawn.used.bottom(); ++y)
        for (int x = drawn.used.left(); x <= drawn.used.right(); ++x)
            drawn.solid = drawn.solid && drawn.image.pixel(x, y) == colour && qAlpha(colour) == 255;
}

} // namespace QmChart6

#include "support/EmfPlayer.h"

#include <QFontMetricsF>

#include <cstring>

namespace QmChart6 {

namespace {

constexpr std::uint32_t NoBrush = 0x80000005;
constexpr std::uint32_t NoPen = 0x80000008;

} // namespace

QImage EmfPlayer::Play(QSize pixels) {
    constexpr qsizetype windowExtent = 9;
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setBrush(Qt::black); // until the file says that there is none
    for (qsizetype at = 0; at < bytes_.size(); at += U32(at + 4)) {
        if (U32(at) == windowExtent)
            painter.scale(static_cast<double>(pixels.width()) / I32(at + 8),
                          static_cast<double>(pixels.height()) / I32(at + 12));
        Record(at, painter);
    }
    return image;
}

std::uint32_t EmfPlayer::U32(qsizetype at) const {
    std::uint32_t value = 0;
    std::memcpy(&value, bytes_.constData() + at, sizeof value);
    return value;
}

std::uint32_t EmfPlayer::U16(qsizetype at) const {
    std::uint16_t value = 0;
    std::memcpy(&value, bytes_.constData() + at, sizeof value);
    return value;
}

QColor EmfPlayer::ColourAt(qsizetype at) const {
    const std::uint32_t colour = U32(at);
    return {static_cast<int>(colour & 0xff), static_cast<int>(colour >> 8 & 0xff),
            static_cast<int>(colour >> 16 & 0xff)};
}

QRectF EmfPlayer::RectAt(qsizetype at) const {
    return {QPointF(I32(at), I32(at + 4)), QPointF(I32(at + 8), I32(at + 12))};
}

QPolygonF EmfPlayer::PointsAt(qsizetype at, int count) const {
    QPolygonF points;
    for (int i = 0; i < count; ++i) points << QPointF(I32(at + 8 * i), I32(at + 8 * i + 4));
    return points;
}

void EmfPlayer::Record(qsizetype at, QPainter& painter) {
    switch (U32(at)) {
    case 3: // polygon
        return Shape(at, true, painter);
    case 4: // polyline
        return Shape(at, false, painter);
    case 7: // polylines
        return Shapes(at, false, painter);
    case 8: // polygons
        return Shapes(at, true, painter);
    case 22: // text alignment
        alignment_ = U32(at + 8);
        return;
    case 24: // text colour
        ink_ = ColourAt(at + 8);
        return;
    case 30: // clip to a rectangle
        painter.setClipRect(RectAt(at + 8), Qt::IntersectClip);
        return;
    case 33:
        painter.save();
        return;
    case 34:
        painter.restore();
        return;
    case 37:
        return Select(U32(at + 8), painter);
    case 39: // a brush
        brushes_[U32(at + 8)] = ColourAt(at + 16);
        return;
    case 59: // a path begins
        inPath_ = true;
        path_ = {};
        return;
    case 60: // and ends
        inPath_ = false;
        return;
    case 67: // clip to the path
        painter.setClipPath(path_, Qt::IntersectClip);
        return;
    case 82:
        return Font(at);
    case 84:
        return Text(at, painter);
    case 95: // a pen
        pens_[U32(at + 8)] = QPen(ColourAt(at + 40), I32(at + 32), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        return;
    case 114:
        return Blend(at, painter);
    default:
        return;
    }
}

void EmfPlayer::Select(std::uint32_t object, QPainter& painter) {
    if (object == NoBrush) painter.setBrush(Qt::NoBrush);
    if (object == NoPen) painter.setPen(Qt::NoPen);
    if (const auto pen = pens_.find(object); pen != pens_.end()) painter.setPen(pen->second);
    if (const auto brush = brushes_.find(object); brush != brushes_.end()) painter.setBrush(brush->second);
    if (const auto font = fonts_.find(object); font != fonts_.end()) font_ = font->second;
}

void EmfPlayer::Shape(qsizetype at, bool closed, QPainter& painter) {
    const QPolygonF points = PointsAt(at + 28, I32(at + 24));
    if (inPath_)
        path_.addPolygon(points);
    else if (closed)
        painter.drawPolygon(points);
    else
        painter.drawPolyline(points);
}

void EmfPlayer::Shapes(qsizetype at, bool closed, QPainter& painter) {
    const int runs = I32(at + 24);
    qsizetype point = at + 32 + qsizetype{4} * runs;
    QPainterPath outlines;
    for (int run = 0; run < runs; ++run) {
        const int count = I32(at + 32 + qsizetype{4} * run);
        const QPolygonF points = PointsAt(point, count);
        point += qsizetype{8} * count;
        if (closed) {
            outlines.addPolygon(points);
            outlines.closeSubpath();
        } else {
            painter.drawPolyline(points);
        }
    }
    if (closed) painter.drawPath(outlines);
}

void EmfPlayer::Font(qsizetype at) {
    constexpr int faceUnits = 32;
    QString face;
    for (int i = 0; i < faceUnits && U16(at + 40 + 2 * i) != 0; ++i)
        face += QChar(static_cast<char16_t>(U16(at + 40 + 2 * i)));
    TextFont read{QFont(face), I32(at + 20) / 10.0};
    read.font.setPixelSize(std::abs(I32(at + 12)));
    read.font.setBold(I32(at + 28) >= 700);
    read.font.setItalic(bytes_[at + 32] != 0);
    read.font.setUnderline(bytes_[at + 33] != 0);
    read.font.setStrikeOut(bytes_[at + 34] != 0);
    fonts_[U32(at + 8)] = read;
}

void EmfPlayer::Text(qsizetype at, QPainter& painter) {
    constexpr std::uint32_t centred = 6;
    constexpr std::uint32_t atRight = 2;
    hasText_ = true;
    const int units = I32(at + 44);
    QString text;
    for (int i = 0; i < units; ++i) text += QChar(static_cast<char16_t>(U16(at + U32(at + 48) + 2 * i)));
    const double width = QFontMetricsF(font_.font).horizontalAdvance(text);
    const double before = (alignment_ & centred) == centred   ? width / 2
                          : (alignment_ & atRight) == atRight ? width
                                                              : 0;
    painter.save();
    painter.translate(I32(at + 36), I32(at + 40));
    painter.rotate(-font_.angle);
    painter.setFont(font_.font);
    painter.setPen(ink_);
    painter.drawText(QPointF(-before, 0), text);
    painter.restore();
}

/// One pixel of a bitmap, laid over a rectangle with an opacity.
void EmfPlayer::Blend(qsizetype at, QPainter& painter) {
    const QRectF box(I32(at + 24), I32(at + 28), I32(at + 32), I32(at + 36));
    const qsizetype pixel = at + U32(at + 92);
    const auto byte = [&](qsizetype place) {
        return static_cast<int>(static_cast<unsigned char>(bytes_[place]));
    };
    QColor colour(byte(pixel + 2), byte(pixel + 1), byte(pixel));
    colour.setAlpha(static_cast<int>(U32(at + 40) >> 16 & 0xff));
    painter.fillRect(box, colour);
}

} // namespace QmChart6

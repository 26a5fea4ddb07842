#include "chartcontrol/paint/MarkerStamps.h"
#include "chartcontrol/paint/OutlinedText.h"
#include "chartcontrol/paint/PictureLetters.h"
#include "chartcontrol/paint/QtColour.h"
#include "chartcontrol/paint/ScenePainter.h"
#include "chartcontrol/scene/Outline.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <QPainter>

namespace QmChart6 {

namespace {

constexpr std::size_t ManyMarkers = 24; // from here on markers are stamped
/// From here on small ones are stamped plainly: in such a cloud nobody sees their edges.
constexpr std::size_t VeryManyMarkers = 5000;

QPainterPath ClosedPath(const std::vector<Point>& outline, double scale) {
    QPainterPath path;
    for (std::size_t at = 0; at < outline.size(); ++at) {
        const QPointF point(outline[at].x * scale, outline[at].y * scale);
        if (at == 0) {
            path.moveTo(point);
        } else {
            path.lineTo(point);
        }
    }
    path.closeSubpath();
    return path;
}

QPainterPath MarkerPath(const MarkerRun& run, double scale) {
    if (run.style != MarkerStyle::Circle) return ClosedPath(MarkerOutline(run.style, run.size), scale);
    QPainterPath path;
    path.addEllipse(QPointF(0, 0), run.size / 2 * scale, run.size / 2 * scale);
    return path;
}

} // namespace

// --- texts

void ScenePainter::operator()(const TextLine& text) {
    SetFont(text.font);
    const QPointF start(-WidthBeforeOrigin(text) * scale_, 0);
    const QPointF origin = At(text.origin);
    if (text.angle == 0) {
        DrawTextAtOrigin(text, origin + start);
        return;
    }
    const QTransform unturned = painter_.worldTransform();
    painter_.translate(origin);
    painter_.rotate(-text.angle);
    DrawTextAtOrigin(text, start);
    painter_.setWorldTransform(unturned);
}

void ScenePainter::DrawTextAtOrigin(const TextLine& text, QPointF start) {
    if (!IsOutlined(text.font)) {
        SetPen(QPen(QtColourOf(text.font.VtColor)));
        painter_.drawText(start, text.text);
        if (!raster_) DrawPictureLetters(painter_, start, text.text);
        return;
    }
    QPainterPath letters;
    letters.addText(start, QFont(painter_.font(), painter_.device()), text.text);
    SetPen(QPen(QtColourOf(text.font.VtColor), OutlineWidth(text.font) * scale_));
    SetNoBrush();
    painter_.drawPath(letters);
}

// --- markers

void ScenePainter::operator()(const MarkerRun& run) {
    const QPainterPath shape = MarkerPath(run, scale_);
    const bool filled = shape_->fill.style != BrushStyle::None;
    const QPen pen = Strokes() ? PenOf(shape_->stroke, Qt::RoundJoin) : QPen(Qt::NoPen);
    const std::span<const Point> points = scene_.PointsOf(run.points);
    if (snaps_ && points.size() >= ManyMarkers) {
        const QBrush brush = filled ? QBrush(Translucent(shape_->fill.colour)) : QBrush(Qt::NoBrush);
        MarkerStamps stamps(shape, brush, pen, painter_.deviceTransform().m11());
        if (pixels_ && points.size() >= VeryManyMarkers && stamps.IsSmall())
            for (const Point point : points)
                stamps.StampPlain(*pixels_, {pixels_->DeviceX(point.x), pixels_->DeviceY(point.y)});
        else if (pixels_)
            for (const Point point : points)
                stamps.Stamp(*pixels_, {pixels_->DeviceX(point.x), pixels_->DeviceY(point.y)});
        else
            for (const Point point : points) stamps.Stamp(painter_, At(point));
        return;
    }
    SetPen(pen);
    if (filled) {
        SetSolid(Translucent(shape_->fill.colour));
    } else {
        SetNoBrush();
    }
    for (const Point point : points) painter_.drawPath(shape.translated(At(point)));
}

} // namespace QmChart6

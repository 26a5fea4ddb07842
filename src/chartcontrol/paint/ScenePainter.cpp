#include "chartcontrol/paint/ScenePainter.h"

#include "chartcontrol/paint/Dash.h"
#include "chartcontrol/paint/DenseLine.h"
#include "chartcontrol/paint/QtColour.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "chartcontrol/scene/Outline.h"

#include <QPainter>

#include <algorithm>

namespace QmChart6 {

namespace {

constexpr double ThinPixels = 2.7;      // up to this width a line is drawn straight into the pixels
constexpr std::size_t ManyPoints = 200; // from here on a wide line is drawn segment by segment

} // namespace

ScenePainter::ScenePainter(const Scene& scene, QPainter& painter, double scale, PaintTarget target)
    : scene_(scene), painter_(painter), scale_(scale), raster_(target == PaintTarget::Raster),
      grid_(painter.deviceTransform()), snaps_(raster_ && grid_.usable) {
    if (snaps_) pixels_ = PixelTarget::Of(painter, scale);
    if (pixels_) polygons_.emplace(*pixels_);
}

void ScenePainter::Paint() {
    painter_.save();
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter_.setBackgroundMode(Qt::TransparentMode);
    painter_.save(); // the state without a clip of the scene's own, to come back to
    for (const Shape& shape : scene_.shapes) {
        shape_ = &shape;
        if (shape.clip != clip_) SetClip(shape.clip);
        std::visit(*this, shape.geometry);
    }
    painter_.restore();
    painter_.restore();
}

// --- the painter's state

void ScenePainter::SetClip(int clip) {
    painter_.restore();
    painter_.save();
    ForgetState();
    clip_ = clip;
    if (pixels_) pixels_->SetClip(pixels_->Whole());
    if (clip == NoClip) return;
    const Box& box = scene_.clips[static_cast<std::size_t>(clip)];
    const QRectF rect = snaps_ ? SnappedRect(box) : RectOf(box);
    painter_.setClipRect(rect, Qt::IntersectClip);
    if (pixels_) pixels_->SetClip(painter_.deviceTransform().mapRect(rect).toAlignedRect());
}

void ScenePainter::ForgetState() {
    pen_.reset();
    brush_.reset();
    font_.reset();
}

void ScenePainter::SetPen(const QPen& pen) {
    if (pen_ == pen) return;
    painter_.setPen(pen);
    pen_ = pen;
}

void ScenePainter::SetNoPen() {
    if (pen_ && pen_->style() == Qt::NoPen) return;
    SetPen(QPen(Qt::NoPen));
}

void ScenePainter::SetSolid(const QColor& colour) {
    if (brush_ && *brush_ == colour) return;
    painter_.setBrush(colour);
    brush_ = colour;
}

QColor ScenePainter::Translucent(Colour of) const {
    QColor colour = QtColourOf(of);
    colour.setAlphaF(static_cast<float>(shape_->fill.opacity));
    return colour;
}

void ScenePainter::SetNoBrush() {
    if (brush_ && !brush_->has_value()) return;
    painter_.setBrush(Qt::NoBrush);
    brush_ = std::optional<QColor>();
}

void ScenePainter::SetFont(const Font& font) {
    if (font_ == font) return;
    painter_.setFont(QtFontOf(font, scale_, painter_.device()->logicalDpiY()));
    font_ = font;
}

QPen ScenePainter::PenOf(const Stroke& stroke, Qt::PenJoinStyle join) const {
    QPen pen(QtColourOf(stroke.colour), stroke.width * scale_, Qt::SolidLine, Qt::FlatCap, join);
    if (!raster_ && stroke.width <= 0) pen.setWidthF(0);
    if (IsDashed(stroke.style) && stroke.width > 0) {
        const DashPattern dashes = DashesOf(stroke.style, stroke.width);
        QList<qreal> lengths;
        for (const double length : dashes.Lengths()) lengths += length / stroke.width;
        pen.setDashPattern(lengths);
    }
    return pen;
}

// --- coordinates

QRectF ScenePainter::RectOf(const Box& box) const {
    return {At({box.left, box.top}), At({box.right, box.bottom})};
}

QRectF ScenePainter::SnappedRect(const Box& box) const {
    const double left = grid_.x.Edge(box.left * scale_);
    const double top = grid_.y.Edge(box.top * scale_);
    const double right = std::max(grid_.x.Edge(box.right * scale_), left + grid_.x.Length(1));
    const double bottom = std::max(grid_.y.Edge(box.bottom * scale_), top + grid_.y.Length(1));
    return {QPointF(left, top), QPointF(right, bottom)};
}

int ScenePainter::StrokePixels() const {
    return grid_.x.Pixels(shape_->stroke.width * scale_);
}

void ScenePainter::TakePoints(std::span<const Point> points) {
    buffer_.clear();
    for (const Point point : points) buffer_.push_back(At(point));
}

// --- lines

void ScenePainter::operator()(const Polyline& line) {
    if (!Strokes()) return;
    const std::span<const Point> points = scene_.PointsOf(line.points);
    if (Snaps()) {
        DrawCrispLine(points);
        return;
    }
    const bool dashed = IsDashed(shape_->stroke.style);
    const bool wide = shape_->stroke.width * scale_ > 1;
    if (raster_ && dashed && points.size() > 2) {
        DrawDashes(points);
    } else if (!dashed && (DrawDenseLine(points) || DrawThinLine(points))) {
        return;
    } else if (raster_ && !dashed && wide && points.size() > ManyPoints) {
        DrawWideLine(points);
    } else {
        SetPen(PenOf(shape_->stroke, Qt::RoundJoin));
        SetNoBrush();
        TakePoints(points);
        painter_.drawPolyline(buffer_.data(), static_cast<int>(buffer_.size()));
    }
}

void ScenePainter::DrawCrispLine(std::span<const Point> points) {
    if (IsDashed(shape_->stroke.style)) {
        ForEachDash(points, DashesOf(shape_->stroke.style, shape_->stroke.width),
                    [&](std::span<const Point> dash) {
                        for (std::size_t at = 1; at < dash.size(); ++at)
                            DrawCrispSegment(dash[at - 1], dash[at]);
                    });
        return;
    }
    if (points.size() == 2) {
        DrawCrispSegment(points[0], points[1]);
        return;
    }
    const int pixels = StrokePixels();
    Stroke stroke = shape_->stroke;
    stroke.width = grid_.x.Length(pixels) / scale_;
    SetPen(PenOf(stroke, Qt::MiterJoin));
    SetNoBrush();
    buffer_.clear();
    for (const Point point : points) {
        buffer_.emplace_back(grid_.x.Middle(point.x * scale_, pixels),
                             grid_.y.Middle(point.y * scale_, pixels));
    }
    painter_.drawPolyline(buffer_.data(), static_cast<int>(buffer_.size()));
}

/// An upright or level line is a box of whole pixels; a slanted one stays as it is.
void ScenePainter::DrawCrispSegment(Point from, Point to) {
    const QColor colour = QtColourOf(shape_->stroke.colour);
    const int pixels = StrokePixels();
    QPointF start = At(from);
    QPointF end = At(to);
    if (from.x == to.x) {
        if (start.y() > end.y()) std::swap(start, end);
        const double left = grid_.x.Middle(start.x(), pixels) - grid_.x.Length(pixels) / 2;
        const double top = grid_.y.Edge(start.y());
        const double bottom = std::max(grid_.y.Edge(end.y()), top + grid_.y.Length(1));
        painter_.fillRect(QRectF(left, top, grid_.x.Length(pixels), bottom - top), colour);
    } else if (from.y == to.y) {
        if (start.x() > end.x()) std::swap(start, end);
        const double top = grid_.y.Middle(start.y(), pixels) - grid_.y.Length(pixels) / 2;
        const double left = grid_.x.Edge(start.x());
        const double right = std::max(grid_.x.Edge(end.x()), left + grid_.x.Length(1));
        painter_.fillRect(QRectF(left, top, right - left, grid_.y.Length(pixels)), colour);
    } else {
        SetPen(QPen(colour, shape_->stroke.width * scale_, Qt::SolidLine, Qt::FlatCap));
        painter_.drawLine(start, end);
    }
}

bool ScenePainter::DrawDenseLine(std::span<const Point> points) {
    if (!pixels_ || !IsDense(points, *pixels_)) return false;
    DenseLine(*pixels_).Draw(points, shape_->stroke.width, shape_->stroke.colour);
    return true;
}

bool ScenePainter::DrawThinLine(std::span<const Point> points) {
    if (!polygons_ || shape_->stroke.width * pixels_->Scale() > ThinPixels ||
        !polygons_->Takes(shape_->bounds))
        return false;
    polygons_->Chain(points, std::max(shape_->stroke.width, 1 / pixels_->Scale()), shape_->stroke.colour);
    return true;
}

/// The stroker takes a long chain as one shape and its time grows far faster than the chain; segments with
/// round ends give the same picture.
void ScenePainter::DrawWideLine(std::span<const Point> points) {
    QPen pen = PenOf(shape_->stroke, Qt::RoundJoin);
    pen.setCapStyle(Qt::RoundCap);
    SetPen(pen);
    for (std::size_t at = 1; at < points.size(); ++at) painter_.drawLine(At(points[at - 1]), At(points[at]));
}

void ScenePainter::DrawDashes(std::span<const Point> points) {
    Stroke solid = shape_->stroke;
    solid.style = PenStyle::Solid;
    SetPen(PenOf(solid, Qt::RoundJoin));
    SetNoBrush();
    ForEachDash(points, DashesOf(shape_->stroke.style, solid.width), [&](std::span<const Point> dash) {
        TakePoints(dash);
        painter_.drawPolyline(buffer_.data(), static_cast<int>(buffer_.size()));
    });
}

// --- areas

void ScenePainter::operator()(const Polygon& polygon) {
    const std::span<const Point> points = scene_.PointsOf(polygon.points);
    if (points.size() < 2 || DrawInPixels(points)) return;
    const bool patterned =
        shape_->fill.style == BrushStyle::Pattern || shape_->fill.style == BrushStyle::Hatch;
    TakePoints(points);
    if (patterned) {
        const HatchPieces pieces = PiecesOf(shape_->fill, points);
        SetNoPen();
        SetSolid(Translucent(pieces.ground));
        painter_.drawPolygon(buffer_.data(), static_cast<int>(buffer_.size()), Qt::OddEvenFill);
        DrawPieces(pieces, RectOf(shape_->bounds));
        if (!Strokes()) return;
        TakePoints(points);
    }
    if (patterned || shape_->fill.style == BrushStyle::None) {
        SetNoBrush();
    } else {
        SetSolid(Translucent(shape_->fill.colour));
    }
    if (Strokes()) {
        SetPen(PenOf(shape_->stroke, Qt::RoundJoin));
    } else {
        SetNoPen();
    }
    painter_.drawPolygon(buffer_.data(), static_cast<int>(buffer_.size()), Qt::OddEvenFill);
}

void ScenePainter::operator()(const Rectangle& rectangle) {
    const QRectF rect = Snaps() ? SnappedRect(rectangle.box) : RectOf(rectangle.box);
    if (shape_->fill.style == BrushStyle::Solid) {
        painter_.fillRect(rect, Translucent(shape_->fill.colour));
    } else if (shape_->fill.style != BrushStyle::None) {
        const Box box{rect.left() / scale_, rect.top() / scale_, rect.right() / scale_,
                      rect.bottom() / scale_};
        const HatchPieces pieces = PiecesOf(shape_->fill, BoxOutline(box));
        painter_.fillRect(rect, QtColourOf(pieces.ground));
        DrawPieces(pieces, rect);
    }
    if (Strokes()) StrokeRect(rect);
}

void ScenePainter::StrokeRect(const QRectF& rect) {
    SetNoBrush();
    if (!Snaps()) {
        SetPen(PenOf(shape_->stroke, Qt::MiterJoin));
        painter_.drawRect(rect);
        return;
    }
    // The frame's middle lies on the edge; an odd pixel more goes inside, alike on all four sides.
    const int pixels = StrokePixels();
    Stroke stroke = shape_->stroke;
    stroke.width = grid_.x.Length(pixels) / scale_;
    SetPen(PenOf(stroke, Qt::MiterJoin));
    const double x = pixels % 2 == 0 ? 0 : grid_.x.Length(1) / 2;
    const double y = pixels % 2 == 0 ? 0 : grid_.y.Length(1) / 2;
    painter_.drawRect(rect.adjusted(x, y, -x, -y));
}

/// Plain shapes are drawn straight into the pixels where there are some.
bool ScenePainter::DrawInPixels(std::span<const Point> outline) {
    const bool plain = shape_->fill.style == BrushStyle::Solid || shape_->fill.style == BrushStyle::None;
    if (!polygons_ || !plain || IsDashed(shape_->stroke.style) || !polygons_->Takes(shape_->bounds))
        return false;
    if (shape_->fill.style == BrushStyle::Solid)
        polygons_->Fill(outline, shape_->fill.colour, shape_->fill.opacity);
    if (Strokes()) polygons_->Outline(outline, shape_->stroke.width, shape_->stroke.colour);
    return true;
}

void ScenePainter::operator()(const Slice& slice) {
    outline_ = SliceOutline(slice);
    if (DrawInPixels(outline_)) return;
    QPainterPath path;
    const QRectF rect = RectOf(slice.box);
    if (std::abs(slice.spanAngle) >= 360) {
        path.addEllipse(rect);
    } else {
        path.moveTo(rect.center());
        path.arcTo(rect, slice.startAngle, slice.spanAngle);
        path.closeSubpath();
    }
    FillPath(path, outline_);
}

void ScenePainter::FillPath(const QPainterPath& path, std::span<const Point> outline) {
    if (shape_->fill.style == BrushStyle::Solid) {
        SetSolid(Translucent(shape_->fill.colour));
    } else {
        if (shape_->fill.style != BrushStyle::None) {
            const HatchPieces pieces = PiecesOf(shape_->fill, outline);
            SetNoPen();
            SetSolid(Translucent(pieces.ground));
            painter_.drawPath(path);
            DrawPieces(pieces, path.boundingRect());
        }
        if (!Strokes()) return;
        SetNoBrush();
    }
    if (Strokes()) {
        SetPen(PenOf(shape_->stroke, Qt::RoundJoin));
    } else {
        SetNoPen();
    }
    painter_.drawPath(path);
}

} // namespace QmChart6

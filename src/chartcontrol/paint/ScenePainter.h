#pragma once

#include "chartcontrol/paint/DeviceGrid.h"
#include "chartcontrol/paint/Hatch.h"
#include "chartcontrol/paint/PaintTarget.h"
#include "chartcontrol/paint/PixelPolygon.h"
#include "chartcontrol/paint/PixelTarget.h"
#include "chartcontrol/scene/Scene.h"

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QPen>
#include <QPointF>

#include <optional>
#include <vector>

class QPainter;

namespace QmChart6 {

/// One painting of a scene: the visitor over its geometry, with what it remembers so that the painter is told
/// of a pen, brush or font only when it changes.
class ScenePainter {
public:
    ScenePainter(const Scene& scene, QPainter& painter, double scale, PaintTarget target);

    void Paint();

    void operator()(const Polyline& line);
    void operator()(const Polygon& polygon);
    void operator()(const Rectangle& rectangle);
    void operator()(const Slice& slice);
    void operator()(const TextLine& text);
    void operator()(const MarkerRun& run);

private:
    void SetClip(int clip);
    void SetPen(const QPen& pen);
    void SetNoPen();
    void SetSolid(const QColor& colour);
    [[nodiscard]] QColor Translucent(Colour of) const;
    void SetNoBrush();
    void ForgetState();
    void SetFont(const Font& font);

    [[nodiscard]] bool Snaps() const { return snaps_ && shape_->crisp; }
    [[nodiscard]] bool Strokes() const { return shape_->stroke.style != PenStyle::None; }
    [[nodiscard]] QPointF At(Point point) const { return {point.x * scale_, point.y * scale_}; }
    [[nodiscard]] QRectF RectOf(const Box& box) const;
    [[nodiscard]] QRectF SnappedRect(const Box& box) const;
    [[nodiscard]] QPen PenOf(const Stroke& stroke, Qt::PenJoinStyle join) const;
    [[nodiscard]] int StrokePixels() const;
    void TakePoints(std::span<const Point> points);

    void DrawCrispLine(std::span<const Point> points);
    void DrawCrispSegment(Point from, Point to);
    bool DrawDenseLine(std::span<const Point> points);
    bool DrawThinLine(std::span<const Point> points);
    void DrawWideLine(std::span<const Point> points);
    void DrawDashes(std::span<const Point> points);
    void FillPath(const QPainterPath& path, std::span<const Point> outline);
    void DrawPieces(const HatchPieces& pieces, const QRectF& within);
    void DrawPieceLines(const HatchPieces& pieces, const QRectF& within);
    [[nodiscard]] QRectF SnappedDot(const Box& box, const QRectF& within) const;
    bool DrawInPixels(std::span<const Point> outline);
    void StrokeRect(const QRectF& rect);
    void DrawTextAtOrigin(const TextLine& text, QPointF start);

    const Scene& scene_;
    QPainter& painter_;
    double scale_;
    bool raster_;
    DeviceGrid grid_;
    bool snaps_;
    std::optional<PixelTarget> pixels_;
    std::optional<PixelPolygon> polygons_;
    const Shape* shape_ = nullptr;

    int clip_ = NoClip;
    std::optional<QPen> pen_;
    std::optional<std::optional<QColor>> brush_; // unknown, none, or a colour
    std::optional<Font> font_;
    std::vector<QPointF> buffer_;
    std::vector<Point> outline_;
};

} // namespace QmChart6

#include "chartcontrol/paint/QtColour.h"
#include "chartcontrol/paint/ScenePainter.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace QmChart6 {

void ScenePainter::DrawPieces(const HatchPieces& pieces, const QRectF& within) {
    for (const Box& box : pieces.boxes) {
        painter_.fillRect(snaps_ ? SnappedDot(box, within) : RectOf(box), QtColourOf(pieces.ink));
    }
    if (!pieces.polygons.empty()) {
        SetNoPen();
        SetSolid(QtColourOf(pieces.ink));
    }
    for (const PointRun run : pieces.polygons) {
        TakePoints(pieces.PointsOf(run));
        painter_.drawPolygon(buffer_.data(), static_cast<int>(buffer_.size()), Qt::OddEvenFill);
    }
    DrawPieceLines(pieces, within);
}

/// Whole pixels, as many for every dot of a size, so that a pattern is even at any scale.
QRectF ScenePainter::SnappedDot(const Box& box, const QRectF& within) const {
    const double left = grid_.x.Edge(box.left * scale_);
    const double top = grid_.y.Edge(box.top * scale_);
    const double width = grid_.x.Length(grid_.x.Pixels(box.Width() * scale_));
    const double height = grid_.y.Length(grid_.y.Pixels(box.Height() * scale_));
    return {QPointF(left, top), QPointF(std::min(left + width, std::max(left, within.right())),
                                        std::min(top + height, std::max(top, within.bottom())))};
}

void ScenePainter::DrawPieceLines(const HatchPieces& pieces, const QRectF& within) {
    if (pieces.lines.empty()) return;
    const QColor ink = QtColourOf(pieces.ink);
    const double half = pieces.lineWidth / 2;
    const bool inPixels = polygons_ && polygons_->Takes(shape_->bounds);
    SetPen(QPen(ink, pieces.lineWidth * scale_, Qt::SolidLine, Qt::FlatCap));
    for (const HatchLine& line : pieces.lines) {
        const bool upright = line.from.x == line.to.x;
        const bool slanted = !upright && line.from.y != line.to.y;
        if (slanted && inPixels) {
            polygons_->Line(line.from, line.to, pieces.lineWidth, pieces.ink);
            continue;
        }
        if (!snaps_ || slanted) {
            painter_.drawLine(At(line.from), At(line.to));
            continue;
        }
        const Box thin = Box::Around(std::array{line.from, line.to});
        const double x = upright ? half : 0;
        const double y = upright ? 0 : half;
        const Box box{thin.left - x, thin.top - y, thin.right + x, thin.bottom + y};
        painter_.fillRect(SnappedDot(box, within), ink);
    }
}

} // namespace QmChart6

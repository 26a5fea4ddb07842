#include "base/Units.h"
#include "chartcontrol/scene/HitTest.h"
#include "chartcontrol/widget/ChartControl.h"

#include <QApplication>
#include <QPainter>

#include <utility>

// Title, footnote and legend are moved by hand.

namespace QmChart6 {

std::optional<Box> ChartControl::MovableBox() {
    if (MovableLocation(chart_, selected_.part) == nullptr) return std::nullopt;
    return BoundsOf(CurrentScene(), ShapesOf(selected_));
}

void ChartControl::StartDrag(const QPointF& place) {
    if (const std::optional<Box> box = MovableBox())
        dragged_ = Dragged{.from = place, .box = *box, .place = {}};
}

void ChartControl::Drag(const QPointF& place) {
    const QPointF by = place - dragged_->from;
    if (!dragged_->place && by.manhattanLength() < QApplication::startDragDistance()) return;
    if (!dragged_->place) setCursor(Qt::ClosedHandCursor);
    dragged_->place =
        PlaceMoved(dragged_->box, {by.x() * PointsPerPixel, by.y() * PointsPerPixel}, CurrentScene().size);
    update();
}

void ChartControl::EndDrag(bool keep) {
    if (!dragged_) return;
    const std::optional<HandPlace> place = dragged_->place;
    dragged_.reset();
    if (!place) return;
    unsetCursor();
    update();
    if (keep) PlacePart(*place);
}

void ChartControl::PlacePart(const HandPlace& place) {
    const std::optional<Box> box = MovableBox();
    if (!box) return; // the host took it away meanwhile
    Location location = *MovableLocation(chart_, selected_.part);
    MoveTo(location, *box, place, CurrentScene().size);
    SetPartLocation(location);
}

void ChartControl::SetPartLocation(const Location& location) {
    Location& now = *MovableLocation(chart_, selected_.part);
    const Location before = std::exchange(now, location);
    if (before == location) return;
    Refresh();
    Q_EMIT PartMoved(selected_.part, before);
}

bool ChartControl::MovePart(int key, Qt::KeyboardModifiers modifiers) {
    const std::optional<Box> box = MovableBox();
    if (!box) return false;
    if (key == Qt::Key_Home) {
        SetPartLocation(AutomaticLocation(selected_.part));
        return true;
    }
    if ((modifiers & ~Qt::KeypadModifier) != Qt::ControlModifier) return false;
    const double right = key == Qt::Key_Left ? -1 : key == Qt::Key_Right ? 1 : 0;
    const double down = key == Qt::Key_Up ? -1 : key == Qt::Key_Down ? 1 : 0;
    if (right == 0 && down == 0) return false;
    // Step by step a part would never leave a place that it is drawn to.
    PlacePart({LocationType::Custom, MovedBox(*box, {right, down}, CurrentScene().size)});
    return true;
}

/// Where the part would stand: in full lines where it is drawn to a place.
void ChartControl::PaintDrag(QPainter& painter) {
    if (!dragged_ || !dragged_->place) return;
    const Box& box = dragged_->place->box;
    const QRectF outline(box.left / PointsPerPixel, box.top / PointsPerPixel, box.Width() / PointsPerPixel,
                         box.Height() / PointsPerPixel);
    const bool drawn = dragged_->place->type != LocationType::Custom;
    QColor inside = palette().color(QPalette::Highlight);
    painter.setPen(QPen(inside, 1.5, drawn ? Qt::SolidLine : Qt::DashLine));
    inside.setAlphaF(0.15F);
    painter.setBrush(inside);
    painter.drawRect(outline);
}

} // namespace QmChart6

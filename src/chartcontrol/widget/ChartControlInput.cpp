#include "base/Units.h"
#include "chartcontrol/layout/data/DataPointHit.h"
#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/widget/ChartControl.h"
#include "chartcontrol/widget/ChartWords.h"
#include "chartcontrol/widget/PartWalk.h"
#include "chartcontrol/widget/ViewTurn.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QTextDocument>
#include <QToolTip>

// What the pointer and the keyboard do.

namespace QmChart6 {

bool ChartControl::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        ShowTip(help->pos(), help->globalPos());
        return true;
    }
    return QWidget::event(event);
}

void ChartControl::ShowTip(const QPoint& place, const QPoint& globalPlace) {
    const ChartPart part = PartAtPixel(place);
    const DataPointHit point{part.index1, part.index2};
    const bool isPoint = part.IsOfSeries() || part.part == static_cast<int>(PartCode::PointLabel);
    if (!isPoint || !HasValue(chart_, point)) {
        QToolTip::hideText();
        return;
    }
    const QString tip = TipOf(vocabulary_, chart_, point);
    // A name that looks like markup is still only a name.
    QToolTip::showText(globalPlace, Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip, this,
                       QRect(place, QSize(1, 1)));
}

void ChartControl::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    if ((event->modifiers() & Qt::ControlModifier) != 0 && Is3D(chart_.chartType())) {
        turnedFrom_ = event->position();
        viewBefore_ = chart_.Plot.View3d;
        setCursor(Qt::ClosedHandCursor);
        return;
    }
    Select(PartAtPixel(event->position()));
    StartDrag(event->position());
}

void ChartControl::mouseMoveEvent(QMouseEvent* event) {
    if (dragged_) {
        Drag(event->position());
        return;
    }
    if (!turnedFrom_) {
        event->ignore();
        return;
    }
    const QPointF moved = event->position() - *turnedFrom_;
    turnedFrom_ = event->position();
    chart_.Plot.View3d = TurnedView(chart_.Plot.View3d, chart_.Plot.AngleUnit, moved.x(), moved.y());
    Refresh();
}

void ChartControl::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        EndDrag(true);
        if (!turnedFrom_) return;
        turnedFrom_.reset();
        unsetCursor();
        Q_EMIT ViewTurned(viewBefore_);
        return;
    }
    event->ignore();
    if (event->button() != Qt::RightButton) return;
    Select(PartAtPixel(event->position()));
    if (WantContextMenu(event->position().toPoint())) event->accept();
}

void ChartControl::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    Select(PartAtPixel(event->position()));
    Activate();
}

void ChartControl::Activate() {
    const ChartPart part = selected_;
    if (!part.IsNone()) Q_EMIT PartActivated(part.part, part.index1, part.index2, part.index3, part.index4);
}

bool ChartControl::WantContextMenu(const QPoint& place) {
    if (!isSignalConnected(QMetaMethod::fromSignal(&ChartControl::ContextMenuWanted))) return false;
    Q_EMIT ContextMenuWanted(place);
    return true;
}

void ChartControl::contextMenuEvent(QContextMenuEvent* event) {
    // The mouse's own was or will be answered when its button is released.
    const bool isAnswered = event->reason() == QContextMenuEvent::Mouse
                                ? isSignalConnected(QMetaMethod::fromSignal(&ChartControl::ContextMenuWanted))
                                : WantContextMenu(PlaceOfSelection());
    event->setAccepted(isAnswered);
}

void ChartControl::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool isMenu =
        key == Qt::Key_Menu || (key == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
    if (isMenu && WantContextMenu(PlaceOfSelection())) return;
    if (dragged_ && key == Qt::Key_Escape) return EndDrag(false);
    if (!isMenu && !selected_.IsNone()) {
        if (key == Qt::Key_Escape) return Select({});
        if (MovePart(key, event->modifiers())) return;
        if (key == Qt::Key_Return || key == Qt::Key_Enter) return Activate();
        if (MoveSelection(key)) return;
    }
    QWidget::keyPressEvent(event);
}

bool ChartControl::MoveSelection(int key) {
    ChartPart whole = selected_;
    whole.index2 = 0;
    std::optional<ChartPart> next;
    switch (key) {
    case Qt::Key_Left:
        next = NextPoint(chart_, selected_, -1);
        break;
    case Qt::Key_Right:
        next = NextPoint(chart_, selected_, 1);
        break;
    case Qt::Key_Up:
        next = NextSeries(chart_, selected_, -1);
        break;
    case Qt::Key_Down:
        next = NextSeries(chart_, selected_, 1);
        break;
    case Qt::Key_Home:
        next = NextPoint(chart_, whole, 1);
        break;
    case Qt::Key_End:
        next = NextPoint(chart_, whole, -1);
        break;
    default:
        return false;
    }
    if (next) Select(*next);
    // At the end of a series the arrows stay within it.
    return selected_.IsOfSeries();
}

void ChartControl::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    const bool forward = event->reason() == Qt::TabFocusReason;
    if (!selected_.IsNone() || !(forward || event->reason() == Qt::BacktabFocusReason)) return;
    if (const auto first = NextPart(WalkOrder(chart_, CurrentScene()), {}, forward)) Select(*first);
}

bool ChartControl::focusNextPrevChild(bool next) {
    const std::optional<ChartPart> part = NextPart(WalkOrder(chart_, CurrentScene()), selected_, next);
    if (part && hasFocus()) {
        Select(*part);
        return true;
    }
    // Whoever comes back starts anew, from the end they come in by.
    Select({});
    return QWidget::focusNextPrevChild(next);
}

} // namespace QmChart6

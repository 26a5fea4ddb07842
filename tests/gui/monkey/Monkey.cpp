#include "gui/monkey/Monkey.h"

#include "automation/ViewerList.h"
#include "gui/monkey/RandomDesktop.h"
#include "qmchart6/QMChartArray.h"
#include "support/Samples.h"
#include "viewer/GraphForm.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <array>

using namespace QmChart6;

namespace {

constexpr int PatienceWithADialog = 60;
const QString& GraphId() {
    static const QString id = QStringLiteral("monkey");
    return id;
}

constexpr std::array Keys{Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return,  Qt::Key_Escape, Qt::Key_Space,
                          Qt::Key_Up,  Qt::Key_Down,    Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Home,
                          Qt::Key_End, Qt::Key_Delete,  Qt::Key_Menu,    Qt::Key_F10,    Qt::Key_A,
                          Qt::Key_Z,   Qt::Key_Y,       Qt::Key_1,       Qt::Key_C,      Qt::Key_S,
                          Qt::Key_L,   Qt::Key_PageUp,  Qt::Key_PageDown};
constexpr std::array Modifiers{Qt::KeyboardModifiers(Qt::NoModifier),
                               Qt::KeyboardModifiers(Qt::NoModifier),
                               Qt::KeyboardModifiers(Qt::ControlModifier),
                               Qt::KeyboardModifiers(Qt::ShiftModifier),
                               Qt::KeyboardModifiers(Qt::AltModifier),
                               Qt::KeyboardModifiers(Qt::ControlModifier | Qt::ShiftModifier)};

template<class Items>
auto OneOf(std::mt19937& random, const Items& items) {
    return items[static_cast<std::size_t>(Below(random, static_cast<int>(items.size())))];
}

/// A mouse event for a widget that the one before may have taken away.
void Send(const QPointer<QWidget>& widget, QEvent::Type type, QPoint place, Qt::MouseButton button,
          Qt::KeyboardModifiers modifiers) {
    if (widget.isNull()) return;
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent event(type, place, widget->mapToGlobal(place),
                      type == QEvent::MouseMove ? Qt::NoButton : button, held, modifiers);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

} // namespace

Monkey::Monkey(unsigned seed, int events) : random_(seed), left_(events) {}

int Monkey::Run() {
    MakeGraph();
    ActSoon();
    while (!over_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QString id = GraphId();
    if (const ViewerPointer viewer = FindViewer(id)) viewer->SetModified(false);
    CloseViewer(GraphId());
    return done_;
}

/// A timer of its own for each event: one that is being handled does not fire in a dialog's own loop.
void Monkey::ActSoon() {
    QTimer::singleShot(0, &context_, [this] { Act(); });
}

/// Closes what is open, one after the other.
void Monkey::End() {
    QWidget* open = QApplication::activePopupWidget();
    if (open == nullptr) open = QApplication::activeModalWidget();
    over_ = open == nullptr;
    if (over_) return;
    ActSoon();
    open->close();
}

void Monkey::Act() {
    if (left_ <= 0) return End();
    ActSoon();
    --left_;
    ++done_;
    QWidget* modal = QApplication::activeModalWidget();
    inSameDialog_ = modal != nullptr && modal == lastModal_ ? inSameDialog_ + 1 : 0;
    lastModal_ = modal;
    if (inSameDialog_ > PatienceWithADialog) {
        QTest::keyClick(modal, Qt::Key_Escape);
        return;
    }
    QWidget* window = Window();
    if (window == nullptr || Below(random_, 50) == 0)
        ActAsHost();
    else
        ActAsPerson(*window);
}

/// Where events go: the menu that hangs open, the dialog that waits, or the viewer.
QWidget* Monkey::Window() const {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    QString id = GraphId();
    const ViewerPointer viewer = FindViewer(id);
    return viewer != nullptr && viewer->isVisible() ? viewer.get() : nullptr;
}

QWidget& Monkey::WidgetOf(QWidget& window) {
    QList<QWidget*> widgets{&window};
    for (QWidget* child : window.findChildren<QWidget*>())
        if (child->isVisible() && !child->isWindow()) widgets.append(child);
    return *OneOf(random_, widgets);
}

void Monkey::ActAsHost() {
    switch (Below(random_, 6)) {
    case 0:
        QMChartArray().QmKillGraph(GraphId());
        return;
    case 1:
        if (QWidget* window = Window()) window->resize(1 + Below(random_, 1200), 1 + Below(random_, 900));
        return;
    default:
        MakeGraph();
    }
}

void Monkey::MakeGraph() {
    const int rows = Below(random_, 12);
    const int columns = Below(random_, 5);
    QMChartArray().QmMakeGraph(
        GraphId(), static_cast<std::int16_t>(rows), static_cast<std::int16_t>(columns),
        Numbers(qMax(1, rows), qMax(1, columns)), Names(QStringLiteral("row"), qMax(1, rows)),
        Names(QStringLiteral("column"), qMax(1, columns)), QStringLiteral("Title"), QStringLiteral("Rows"),
        QStringLiteral("Columns"), QStringLiteral("Values"), static_cast<std::int16_t>(Below(random_, 4)),
        static_cast<std::uint8_t>(Below(random_, 3)));
}

void Monkey::ActAsPerson(QWidget& window) {
    QWidget& widget = WidgetOf(window);
    switch (Below(random_, 4)) {
    case 0:
        Press(window);
        return;
    case 1: {
        const QPointF place = widget.rect().center();
        QWheelEvent turn(place, widget.mapToGlobal(place), {}, {0, Below(random_, 2) == 0 ? 120 : -120},
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &turn);
        return;
    }
    default:
        Click(widget);
    }
}

void Monkey::Click(QWidget& widget) {
    const QPoint place(Below(random_, qMax(1, widget.width())), Below(random_, qMax(1, widget.height())));
    const Qt::MouseButton button = Below(random_, 4) == 0 ? Qt::RightButton : Qt::LeftButton;
    const Qt::KeyboardModifiers modifiers = OneOf(random_, Modifiers);
    const QPointer<QWidget> target(&widget);
    const int kind = Below(random_, 8);
    Send(target, QEvent::MouseButtonPress, place, button, modifiers);
    if (kind == 0) {
        Send(target, QEvent::MouseButtonRelease, place, button, modifiers);
        Send(target, QEvent::MouseButtonDblClick, place, button, modifiers);
    }
    const QPoint end = kind == 1 ? QPoint(Below(random_, 600), Below(random_, 400)) : place;
    if (kind == 1) Send(target, QEvent::MouseMove, end, button, modifiers);
    Send(target, QEvent::MouseButtonRelease, end, button, modifiers);
}

void Monkey::Press(QWidget& window) {
    QWidget* focused = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    QTest::keyClick(focused, OneOf(random_, Keys), OneOf(random_, Modifiers));
}

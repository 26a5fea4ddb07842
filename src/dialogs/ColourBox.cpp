#include "dialogs/ColourBox.h"

#include "desktop/CurrentDesktop.h"

#include <QAbstractButton>
#include <QMouseEvent>
#include <QPainter>

namespace QmChart6 {

ColourBox::ColourBox(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColourBox::SetBackColor(const QColor& colour) {
    colour_ = colour;
    setAccessibleDescription(colour.name());
    setToolTip(colour.name());
    update();
}

bool ColourBox::Pick(const QString& title) {
    const auto picked = CurrentDesktop().PickColour(window(), colour_, title);
    if (!picked) return false;
    SetBackColor(*picked);
    Q_EMIT Picked();
    return true;
}

void ColourBox::OpensBy(QAbstractButton& button) {
    button_ = &button;
    setCursor(Qt::PointingHandCursor);
}

/// Taken, so that the release comes here.
void ColourBox::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton && button_ != nullptr);
}

void ColourBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && button_ != nullptr &&
        rect().contains(event->position().toPoint()))
        button_->click();
}

void ColourBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QColor frame = palette().color(QPalette::WindowText);
    frame.setAlphaF(0.5F);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.fillRect(rect(), frame);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), colour_);
}

} // namespace QmChart6

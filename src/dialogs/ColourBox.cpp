#include "dialogs/ColourBox.h"

#include "desktop/CurrentDesktop.h"

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

void ColourBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QColor frame = palette().color(QPalette::WindowText);
    frame.setAlphaF(0.5F);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.fillRect(rect(), frame);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), colour_);
}

} // namespace QmChart6

#include "dialogs/FootButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace QmChart6 {

QSize FootButton::sizeHint() const {
    return QPushButton::sizeHint() + QSize(0, FootHeight);
}

void FootButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton button;
    initStyleOption(&button);
    button.rect.adjust(0, 0, 0, -FootHeight);
    painter.drawControl(QStyle::CE_PushButton, button);
}

bool FootButton::hitButton(const QPoint& place) const {
    return rect().adjusted(0, 0, 0, -FootHeight).contains(place);
}

} // namespace QmChart6

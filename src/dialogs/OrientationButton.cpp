#include "dialogs/OrientationButton.h"

#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace QmChart6 {

namespace {

/// Three letters one after another, or one above another, round the origin, `size` logical pixels at most.
QPainterPath Letters(const QFont& like, bool stacked, double size) {
    QFont font(like);
    font.setPixelSize(48);
    font.setBold(true);
    QPainterPath path;
    const QString letters = QStringLiteral("ABC");
    for (int at = 0; at < letters.size(); ++at) {
        QPainterPath letter;
        letter.addText(0, 0, font, QString(letters[at]));
        const QRectF box = letter.boundingRect();
        const double step = at * 58.0;
        letter.translate(stacked ? -box.center().x() : step - box.center().x(), stacked ? step : 0);
        path.addPath(letter);
    }
    const QRectF box = path.boundingRect();
    const double scale = size / std::max(box.width(), box.height());
    return QTransform::fromScale(scale, scale).map(path.translated(-box.center()));
}

double AngleOf(Orientation orientation) {
    switch (orientation) {
    case Orientation::Up:
        return -90;
    case Orientation::Down:
        return 90;
    case Orientation::Horizontal:
    case Orientation::Vertical:
        break;
    }
    return 0;
}

} // namespace

OrientationButton::OrientationButton(Orientation orientation, QWidget* parent)
    : QPushButton(parent), orientation_(orientation) {
    setCheckable(true);
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QColor OrientationButton::BackColor() const {
    return isChecked() ? QColor(Qt::black) : palette().color(QPalette::Button);
}

void OrientationButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton button;
    initStyleOption(&button);
    if (isChecked()) button.palette.setColor(QPalette::Button, BackColor());
    painter.drawControl(QStyle::CE_PushButtonBevel, button);
    const QRect face = rect().adjusted(3, 3, -3, -3);
    if (isChecked()) painter.fillRect(face, BackColor());
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = face.adjusted(1, 1, -1, -1);
        focus.backgroundColor = BackColor();
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.rotate(AngleOf(orientation_));
    painter.fillPath(Letters(font(), orientation_ == Orientation::Vertical, 26),
                     isChecked() ? QColor(Qt::white) : palette().color(QPalette::ButtonText));
}

} // namespace QmChart6

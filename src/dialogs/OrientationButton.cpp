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
    constexpr int Height = 48;
    constexpr double LineHeight = 42;
    font.setPixelSize(Height);
    font.setBold(true);
    const QString letters = QStringLiteral("ABC");
    QPainterPath path;
    if (stacked) {
        for (int at = 0; at < letters.size(); ++at) {
            QPainterPath letter;
            letter.addText(0, at * LineHeight, font, QString(letters[at]));
            path.addPath(letter.translated(-letter.boundingRect().center().x(), 0));
        }
    } else {
        path.addText(0, 0, font, letters);
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
    painter.fillPath(Letters(font(), orientation_ == Orientation::Vertical, 28),
                     isChecked() ? QColor(Qt::white) : palette().color(QPalette::ButtonText));
}

} // namespace QmChart6

#include "viewer/StatusPanel.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace QmChart6 {

namespace {

constexpr int SideMargin = 6; // logical pixels
constexpr int EdgeMargin = 3;

} // namespace

StatusPanel::StatusPanel(int least, int most, QWidget* parent) : QWidget(parent), least_(least), most_(most) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setVisible(least_ > 0);
}

void StatusPanel::SetText(const QString& text) {
    if (text == text_) return;
    text_ = text;
    setAccessibleName(text_);
    setVisible(least_ > 0 || !text_.isEmpty());
    updateGeometry();
    update();
}

QSize StatusPanel::sizeHint() const {
    const QFontMetrics metrics(font());
    const int wanted = metrics.horizontalAdvance(text_) + 2 * SideMargin + 1;
    return {std::clamp(wanted, least_, most_), metrics.height() + 2 * EdgeMargin};
}

QSize StatusPanel::minimumSizeHint() const {
    return {std::min(least_, sizeHint().width()), sizeHint().height()};
}

void StatusPanel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect room = rect().adjusted(SideMargin, 0, -SideMargin, 0);
    const QString shown = fontMetrics().elidedText(text_, Qt::ElideRight, room.width());
    painter.drawText(room, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

} // namespace QmChart6

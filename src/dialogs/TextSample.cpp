#include "dialogs/TextSample.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

constexpr double MostPoints = 20;
constexpr int Height = 40; // logical pixels
constexpr int Beside = 8;
/// Of lightness from 0 to 1: letters that are closer to their ground are not read.
constexpr double LeastDifference = 0.35;

} // namespace

TextSample::TextSample(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize TextSample::sizeHint() const {
    return {Height * 4, Height};
}

void TextSample::SetText(const QString& text) {
    text_ = text.simplified();
    setAccessibleName(text_);
    update();
}

void TextSample::SetFont(const FontChoice& font) {
    font_ = font;
    setAccessibleDescription(font.family);
    update();
}

void TextSample::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    // Light letters are for a dark ground.
    QColor ground = palette().color(QPalette::Base);
    const QColor letters = font_.colour.isValid() ? font_.colour : palette().color(QPalette::Text);
    if (std::abs(letters.lightnessF() - ground.lightnessF()) < LeastDifference)
        ground = letters.lightnessF() > LeastDifference ? QColor(Qt::black) : QColor(Qt::white);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    painter.fillRect(rect().adjusted(1, 1, -1, -1), ground);
    QFont font(font_.family);
    font.setPointSizeF(std::clamp(font_.size, 1.0, MostPoints));
    font.setBold(font_.bold);
    font.setItalic(font_.italic);
    font.setStrikeOut(font_.strikethrough);
    font.setUnderline(font_.underline);
    painter.setFont(font);
    painter.setPen(letters);
    const QRect line = rect().adjusted(Beside, 0, -Beside, 0);
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignHCenter | Qt::TextSingleLine,
                     QFontMetrics(font).elidedText(text_, Qt::ElideRight, line.width()));
}

} // namespace QmChart6

#include "chartcontrol/paint/PictureLetters.h"

#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>

namespace QmChart6 {

namespace {

/// Below this no character is a picture: letters, digits and marks of most scripts need no closer look.
constexpr char16_t FirstPicture = 0x2190;

bool MayHavePictures(const QString& text) {
    return std::any_of(text.begin(), text.end(),
                       [](QChar character) { return character.unicode() >= FirstPicture; });
}

/// Whether the glyphs are bitmaps or layers in colours.
bool IsOfPictures(const QRawFont& font) {
    for (const char* table : {"CBDT", "COLR", "sbix"})
        if (!font.fontTable(table).isEmpty()) return true;
    return false;
}

void DrawAsImage(QPainter& painter, QPointF top, const QGlyphRun& glyphs) {
    constexpr int largest = 4096;
    const QRect bounds = glyphs.boundingRect().toAlignedRect();
    if (bounds.isEmpty() || std::max(bounds.width(), bounds.height()) > largest) return;
    QImage image(bounds.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).drawGlyphRun(-bounds.topLeft(), glyphs);
    painter.drawImage(top + bounds.topLeft(), image);
}

} // namespace

void DrawPictureLetters(QPainter& painter, QPointF start, const QString& text) {
    if (!MayHavePictures(text)) return;
    QTextLayout layout(text, painter.font(), painter.device());
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const QPointF top(start.x(), start.y() - line.ascent());
    for (const QGlyphRun& glyphs : layout.glyphRuns())
        if (IsOfPictures(glyphs.rawFont())) DrawAsImage(painter, top, glyphs);
}

} // namespace QmChart6

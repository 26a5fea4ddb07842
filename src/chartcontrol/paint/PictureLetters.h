#pragma once

#include <QPointF>
#include <QString>

class QPainter;

namespace QmChart6 {

/// Draws those letters of a line of text, in the painter's font, that are pictures in colours (emoji), as
/// images: vector formats leave them out where they write the text. The line starts at `start` on its base
/// line.
void DrawPictureLetters(QPainter& painter, QPointF start, const QString& text);

} // namespace QmChart6

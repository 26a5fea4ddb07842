#pragma once

#include <QIcon>

class QPalette;

namespace QmChart6 {

/// An icon of an SVG file, drawn anew at every size and on every screen. Lines of the colour "currentColor"
/// take the palette's button text colour, so that they are read on light and on dark ground. Null where the
/// file cannot be drawn.
QIcon BarIcon(const QString& file, const QPalette& palette);

} // namespace QmChart6

#pragma once

#include <QIcon>

class QPalette;

namespace QmChart6 {

/// An icon of an SVG file, drawn anew at every size and on every screen, and not before it is painted. Lines
/// of the colour "currentColor" take the palette's button text colour, so that they are read on light and on
/// dark ground.
QIcon BarIcon(const QString& file, const QPalette& palette);

/// Whether such icons can be drawn here; finding out takes a while.
bool CanDrawBarIcons();

} // namespace QmChart6

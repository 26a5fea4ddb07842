#pragma once

#include "chartcontrol/scene/Scene.h"

#include <vector>

namespace QmChart6 {

/// Whether letters of the font are hollow: their outlines are drawn and nothing inside.
inline bool IsOutlined(const Font& font) {
    return (font.Style & FontOutline) != 0;
}

/// The line that outlined letters are drawn with, in points.
double OutlineWidth(const Font& font);

/// The outlines of a line of text where it stands on the page, each closed from its last point to its first.
/// Needs a QGuiApplication.
std::vector<std::vector<Point>> LetterOutlines(const TextLine& text);

} // namespace QmChart6

#include "chartcontrol/paint/OutlinedText.h"

#include "chartcontrol/paint/QtTextMeasurer.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <QPainterPath>
#include <QTransform>

namespace QmChart6 {

double OutlineWidth(const Font& font) {
    return font.Size / 30;
}

std::vector<std::vector<Point>> LetterOutlines(const TextLine& text) {
    // Curves become chords where they are so large that none of the corners shows.
    constexpr double unitsPerPoint = 20;
    QPainterPath letters;
    letters.addText(-WidthBeforeOrigin(text) * unitsPerPoint, 0, QtFontOf(text.font, unitsPerPoint),
                    text.text);
    QTransform toPage;
    toPage.translate(text.origin.x, text.origin.y);
    toPage.rotate(-text.angle);
    toPage.scale(1 / unitsPerPoint, 1 / unitsPerPoint);
    std::vector<std::vector<Point>> outlines;
    for (const QPolygonF& chords : letters.toSubpathPolygons()) {
        std::vector<Point>& outline = outlines.emplace_back();
        for (const QPointF& corner : toPage.map(chords)) outline.push_back({corner.x(), corner.y()});
        if (outline.size() > 1 && outline.front() == outline.back()) outline.pop_back();
    }
    return outlines;
}

} // namespace QmChart6

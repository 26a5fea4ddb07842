#pragma once

#include "chartcontrol/scene/SceneBuilder.h"
#include "chartcontrol/scene/TextMeasurer.h"

#include <vector>

namespace QmChart6 {

/// Room for a text, along its reading direction and across.
struct TextRoom {
    double length = 0;
    int lines = 1;
};

/// A text broken into lines, measured, and not yet placed.
struct TextBlock {
    struct Line {
        QString text;
        double width = 0;
    };

    std::vector<Line> lines;
    QmChart6::Font font;
    QmChart6::Orientation orientation = QmChart6::Orientation::Horizontal;
    double ascent = 0;
    double descent = 0;
    /// From base line to base line.
    double leading = 0;
    /// Whether some of the text had to be left out.
    bool elided = false;
    /// Whether a word had to go on in the next line.
    bool splitsWord = false;

    [[nodiscard]] bool IsEmpty() const { return lines.empty(); }
    /// The widest line, and the lines' height together.
    [[nodiscard]] double Length() const;
    [[nodiscard]] double Depth() const;
    /// The size as placed, turned by the orientation.
    [[nodiscard]] Size Extent() const;
};

/// Line feeds kept, other control characters as blanks.
QString Printable(const QString& text);

/// The text, or its beginning and "…" where it is longer than `length`; "" where not even that fits.
QString Elide(const QString& text, const Font& font, double length, const TextMeasurer& measurer);

/// One line, elided in its middle: names that begin alike stay apart by their ends.
TextBlock ElidedLine(const QString& text, const Font& font, double length, const TextMeasurer& measurer);

/// Breaks at line feeds and blanks, and within a word that is longer than a line; what does not fit the lines
/// is elided.
TextBlock BreakText(const QString& text, const Font& font, Orientation orientation, const TextRoom& room,
                    const TextMeasurer& measurer);

/// Places a block within a box. For turned blocks the alignments are those of the block as a whole.
void PlaceText(SceneBuilder& builder, Part part, const TextBlock& block, const Box& box,
               HorizontalAlignment horizontal, VerticalAlignment vertical);

} // namespace QmChart6

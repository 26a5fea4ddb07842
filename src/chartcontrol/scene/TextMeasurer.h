#pragma once

#include "chartcontrol/model/Drawing.h"

namespace QmChart6 {

/// Extents of one line of text in points: its advance width, and how far it reaches above and below the base
/// line. Ascent and descent depend on the font alone.
struct TextExtent {
    double width = 0;
    double ascent = 0;
    double descent = 0;

    [[nodiscard]] double Height() const { return ascent + descent; }
};

/// Measures text for layout. Implementations are safe to call from the thread that made them.
class TextMeasurer {
public:
    virtual ~TextMeasurer() = default;

    [[nodiscard]] virtual TextExtent Measure(const QString& text, const Font& font) const = 0;
};

/// Fixed widths, the same on every machine: a character is 0.6 of the font's size wide, 0.8 high and 0.2
/// deep.
class StubTextMeasurer : public TextMeasurer {
public:
    [[nodiscard]] TextExtent Measure(const QString& text, const Font& font) const override {
        return {0.6 * font.Size * static_cast<double>(text.size()), 0.8 * font.Size, 0.2 * font.Size};
    }
};

} // namespace QmChart6

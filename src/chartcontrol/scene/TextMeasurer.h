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

} // namespace QmChart6

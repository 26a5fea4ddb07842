#pragma once

#include "chartcontrol/scene/TextMeasurer.h"

namespace QmChart6 {

/// Fixed widths, the same on every machine: a character is 0.6 of the font's size wide, 0.8 high and 0.2
/// deep.
class StubTextMeasurer : public TextMeasurer {
public:
    [[nodiscard]] TextExtent Measure(const QString& text, const Font& font) const override {
        return {0.6 * font.Size * static_cast<double>(text.size()), 0.8 * font.Size, 0.2 * font.Size};
    }
};

} // namespace QmChart6

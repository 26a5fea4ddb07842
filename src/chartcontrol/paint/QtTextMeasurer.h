#pragma once

#include "chartcontrol/scene/TextMeasurer.h"

#include <QFont>

namespace QmChart6 {

/// The Qt font of a model font, `scale` device units to a point. Hinting is off, so that widths grow evenly.
QFont QtFontOf(const Font& font, double scale);

/// Text as Qt will draw it, measured in points at a resolution so fine that rounding does not show. Needs a
/// QGuiApplication. Not to be shared between threads.
class QtTextMeasurer : public TextMeasurer {
public:
    [[nodiscard]] TextExtent Measure(const QString& text, const Font& font) const override;
};

} // namespace QmChart6

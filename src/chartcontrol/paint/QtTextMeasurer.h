#pragma once

#include "chartcontrol/scene/TextMeasurer.h"

#include <QFont>

#include <memory>
#include <vector>

namespace QmChart6 {

/// The Qt font of a model font, `scale` device units to a point. Hinting is off, so that widths grow evenly.
/// `dotsPerInch` is the logical resolution of the device that the font is for; 0 is the screen's.
QFont QtFontOf(const Font& font, double scale, int dotsPerInch = 0);

/// Text as Qt will draw it, measured in points at a resolution so fine that rounding does not show. Needs a
/// QGuiApplication. Not to be shared between threads.
class QtTextMeasurer : public TextMeasurer {
public:
    QtTextMeasurer();
    ~QtTextMeasurer() override;

    [[nodiscard]] TextExtent Measure(const QString& text, const Font& font) const override;

private:
    /// A typeface in one cut at the design size; every size of it is that one scaled.
    struct Face;

    Face& FaceOf(const Font& font) const;

    mutable std::vector<std::unique_ptr<Face>> faces_;
};

} // namespace QmChart6

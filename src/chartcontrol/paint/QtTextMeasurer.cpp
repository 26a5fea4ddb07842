#include "chartcontrol/paint/QtTextMeasurer.h"

#include "chartcontrol/paint/Inches.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHash>
#include <QScreen>

#include <algorithm>

namespace QmChart6 {

namespace {

constexpr double DesignSize = 256;        // device units to the em: so fine that 1/64 of one does not show
constexpr qsizetype GreatestCache = 2048; // widths kept for each face

/// The resolution that Qt takes for fonts that are not for a certain device.
int ScreenDotsPerInch() {
    constexpr int Usual = 96;
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? qRound(screen->logicalDotsPerInchY()) : Usual;
}

} // namespace

QFont QtFontOf(const Font& font, double scale, int dotsPerInch) {
    constexpr double LeastSize = 0.01;
    QFont result(font.Name);
    // setPixelSize takes whole pixels only; points of the device's own resolution say the same with
    // fractions.
    const int resolution = dotsPerInch > 0 ? dotsPerInch : ScreenDotsPerInch();
    result.setPointSizeF(std::max(LeastSize, font.Size * scale * PointsPerInch / resolution));
    result.setBold((font.Style & FontBold) != 0);
    result.setItalic((font.Style & FontItalic) != 0);
    result.setUnderline((font.Effect & FontUnderline) != 0);
    result.setStrikeOut((font.Effect & FontStrikethrough) != 0);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

struct QtTextMeasurer::Face {
    explicit Face(const Font& font)
        : name(font.Name), style(font.Style & (FontBold | FontItalic)),
          metrics(QtFontOf({font.Name, DesignSize, style, 0, {}}, 1)) {}

    [[nodiscard]] double WidthOf(const QString& text) {
        const auto known = widths.constFind(text);
        if (known != widths.constEnd()) return *known;
        if (widths.size() >= GreatestCache) widths.clear();
        return *widths.insert(text, metrics.horizontalAdvance(text) / DesignSize);
    }

    QString name;
    int style;
    QFontMetricsF metrics;
    QHash<QString, double> widths; // in ems
};

QtTextMeasurer::QtTextMeasurer() = default;
QtTextMeasurer::~QtTextMeasurer() = default;

TextExtent QtTextMeasurer::Measure(const QString& text, const Font& font) const {
    Face& face = FaceOf(font);
    const double em = font.Size / DesignSize;
    return {face.WidthOf(text) * font.Size, face.metrics.ascent() * em, face.metrics.descent() * em};
}

QtTextMeasurer::Face& QtTextMeasurer::FaceOf(const Font& font) const {
    const int style = font.Style & (FontBold | FontItalic);
    const auto known = std::find_if(faces_.begin(), faces_.end(), [&](const std::unique_ptr<Face>& face) {
        return face->style == style && face->name == font.Name;
    });
    if (known != faces_.end()) return **known;
    return *faces_.emplace_back(std::make_unique<Face>(font));
}

} // namespace QmChart6

#include "chartcontrol/layout/text/LabelText.h"

#include "base/NumberFormat.h"
#include "chartcontrol/layout/data/Sums.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

constexpr double LeastContrast = 4.5;

/// Relative luminance of a colour, WCAG 2.1.
double Luminance(Colour colour) {
    const auto linear = [](std::uint8_t component) {
        const double part = component / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.Red) + 0.7152 * linear(colour.Green) + 0.0722 * linear(colour.Blue);
}

double Contrast(Colour one, Colour other) {
    const double a = Luminance(one);
    const double b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

} // namespace

bool ShowsLabel(const DataPointLabel& label) {
    return label.LocationType != LabelLocation::None && (label.Custom || label.Component != 0);
}

QString LabelTexts::Of(const DataPointLabel& label, int series, int category, double value) {
    const bool showsShare = !label.Custom && (label.Component & LabelShowsPercent) != 0;
    return WithShare(label, series, value, showsShare ? ShareOf(category, value) : 0);
}

QString LabelTexts::WithShare(const DataPointLabel& label, int series, double value, double share) const {
    if (label.Custom) return label.Text;
    QStringList parts;
    if ((label.Component & LabelShowsSeriesName) != 0) parts += chart_.SeriesName(series);
    if ((label.Component & LabelShowsValue) != 0) parts += FormatNumber(value, label.ValueFormat);
    if ((label.Component & LabelShowsPercent) != 0) parts += FormatNumber(share, label.PercentFormat);
    return parts.join(QStringLiteral("; "));
}

double LabelTexts::ShareOf(int category, double value) {
    if (sums_.empty()) {
        sums_.assign(static_cast<std::size_t>(chart_.CategoryCount()), 0);
        for (int series = 1; series <= chart_.Plot.SeriesCollection.Count(); ++series) {
            const Values values = chart_.SeriesValues(series);
            for (int i = 0; i < values.count; ++i)
                if (!std::isnan(values[i]))
                    sums_[static_cast<std::size_t>(i)] += std::abs(values[i]) * SumUnit;
        }
    }
    const double sum = sums_[static_cast<std::size_t>(category)];
    return sum > 0 ? value * SumUnit / sum : 0;
}

Font ReadableFont(const Font& font, Colour background) {
    Font readable = font;
    if (Contrast(font.VtColor, background) < LeastContrast) {
        constexpr Colour black{0, 0, 0};
        constexpr Colour white{255, 255, 255};
        readable.VtColor = Contrast(black, background) > Contrast(white, background) ? black : white;
    }
    return readable;
}

} // namespace QmChart6

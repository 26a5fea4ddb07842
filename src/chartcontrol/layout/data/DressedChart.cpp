#include "chartcontrol/layout/data/DressedChart.h"

#include "chartcontrol/model/ColourContrast.h"

namespace QmChart6 {

namespace {

constexpr Colour LightText{224, 228, 234};
constexpr Colour BlackText{0, 0, 0};
/// How much lines stand out from the ground.
constexpr double LineShare = 0.45;
constexpr double GridShare = 0.22;

/// A colour that is still the one that every chart starts with gives way.
void Replace(Colour& colour, Colour untouched, Colour other) {
    if (colour == untouched) colour = other;
}

void Dress(Axis& axis, const Axis& untouched, Colour ground, Colour text) {
    Replace(axis.AxisTitle.VtFont.VtColor, untouched.AxisTitle.VtFont.VtColor, text);
    Replace(axis.Labels.Item(1).VtFont.VtColor, untouched.Labels.Item(1).VtFont.VtColor, text);
    Replace(axis.Pen.VtColor, untouched.Pen.VtColor, Mixed(ground, text, LineShare));
    Replace(axis.AxisGrid.MajorPen.VtColor, untouched.AxisGrid.MajorPen.VtColor,
            Mixed(ground, text, GridShare));
}

} // namespace

std::optional<Chart> DressedForGround(const Chart& chart) {
    const Colour ground = chart.Backdrop.Fill.Brush.FillColor;
    static const Chart untouched;
    const bool isRead = Contrast(untouched.Legend.VtFont.VtColor, ground) >= TextContrast;
    if (chart.Backdrop.Fill.Style == FillStyle::None || isRead) return std::nullopt;
    const Colour text = IsDark(ground) ? LightText : BlackText;
    Chart dressed = chart;
    Replace(dressed.Title.VtFont.VtColor, untouched.Title.VtFont.VtColor, text);
    Replace(dressed.Footnote.VtFont.VtColor, untouched.Footnote.VtFont.VtColor, text);
    Replace(dressed.Legend.VtFont.VtColor, untouched.Legend.VtFont.VtColor, text);
    Replace(dressed.Backdrop.Frame.FrameColor, untouched.Backdrop.Frame.FrameColor,
            Mixed(ground, text, GridShare));
    for (const AxisId id : {AxisId::X, AxisId::Y, AxisId::SecondaryY, AxisId::Z})
        Dress(dressed.Plot.Axis(id), untouched.Plot.Axis(id), ground, text);
    return dressed;
}

} // namespace QmChart6

#include "chartcontrol/layout/data/DarkGround.h"

#include "chartcontrol/model/ColourContrast.h"

namespace QmChart6 {

namespace {

constexpr Colour LightText{224, 228, 234};
/// How much lines stand out from the ground.
constexpr double LineShare = 0.45;
constexpr double GridShare = 0.22;

/// A colour that is still the one that every chart starts with gives way.
void Replace(Colour& colour, Colour untouched, Colour light) {
    if (colour == untouched) colour = light;
}

void Dress(Axis& axis, const Axis& untouched, Colour ground) {
    Replace(axis.AxisTitle.VtFont.VtColor, untouched.AxisTitle.VtFont.VtColor, LightText);
    Replace(axis.Labels.Item(1).VtFont.VtColor, untouched.Labels.Item(1).VtFont.VtColor, LightText);
    Replace(axis.Pen.VtColor, untouched.Pen.VtColor, Mixed(ground, LightText, LineShare));
    Replace(axis.AxisGrid.MajorPen.VtColor, untouched.AxisGrid.MajorPen.VtColor,
            Mixed(ground, LightText, GridShare));
}

} // namespace

std::optional<Chart> DressedForDark(const Chart& chart) {
    const Colour ground = chart.Backdrop.Fill.Brush.FillColor;
    if (chart.Backdrop.Fill.Style == FillStyle::None || !IsDark(ground)) return std::nullopt;
    static const Chart untouched;
    Chart dressed = chart;
    Replace(dressed.Title.VtFont.VtColor, untouched.Title.VtFont.VtColor, LightText);
    Replace(dressed.Footnote.VtFont.VtColor, untouched.Footnote.VtFont.VtColor, LightText);
    Replace(dressed.Legend.VtFont.VtColor, untouched.Legend.VtFont.VtColor, LightText);
    Replace(dressed.Backdrop.Frame.FrameColor, untouched.Backdrop.Frame.FrameColor,
            Mixed(ground, LightText, GridShare));
    for (const AxisId id : {AxisId::X, AxisId::Y, AxisId::SecondaryY, AxisId::Z})
        Dress(dressed.Plot.Axis(id), untouched.Plot.Axis(id), ground);
    return dressed;
}

} // namespace QmChart6

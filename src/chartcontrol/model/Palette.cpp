#include "chartcontrol/model/Palette.h"

#include <array>

namespace QmChart6 {

namespace {

constexpr std::array<Colour, PaletteSize> Colours{{
    {47, 98, 151},   // blue
    {181, 121, 8},   // amber
    {2, 161, 109},   // green
    {160, 15, 18},   // red
    {73, 54, 134},   // violet
    {57, 131, 134},  // teal
    {220, 111, 182}, // pink
    {116, 110, 46},  // olive
    {3, 50, 92},     // navy
    {100, 83, 80},   // brown
}};

/// The hatches that tell the second and later rounds of the palette from the first: down diagonal, up
/// diagonal, horizontal, diagonal cross, vertical, cross.
constexpr std::array<int, HatchCount> HatchOfRound{2, 3, 0, 5, 1, 4};

} // namespace

Colour PaletteColour(int number) {
    return Colours[static_cast<std::size_t>((number - 1) % PaletteSize)];
}

Series PaletteSeries(int number, SeriesType type) {
    Series series;
    series.SeriesType = type;
    DataPoint& all = series.DataPoints.Item(DataPoints::All);
    all.Brush.FillColor = PaletteColour(number);
    series.StatLine.VtColor = PaletteColour(number);
    const int round = (number - 1) / PaletteSize;
    if (round > 0) {
        all.Brush.Style = BrushStyle::Hatch;
        all.Brush.Index = HatchOfRound[static_cast<std::size_t>((round - 1) % HatchCount)];
        series.LinePen.Style = round % 2 == 1 ? PenStyle::Dashed : PenStyle::Dotted;
        series.LinePen.Width = round <= 2 ? 1.5 : 1.0;
    }
    return series;
}

} // namespace QmChart6

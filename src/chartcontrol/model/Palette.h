#pragma once

#include "chartcontrol/model/Series.h"

namespace QmChart6 {

/// How many colours the control's own palette holds. All keep 3 : 1 against white (WCAG 2.1, 1.4.11) and stay
/// apart for people with any of the three colour-vision deficiencies (as simulated by Machado, Oliveira and
/// Fernandes, 2009) and, in lightness, when printed in grey.
inline constexpr int PaletteSize = 10;

/// Colour of series `number` (from 1); the palette starts over after PaletteSize.
Colour PaletteColour(int number);

/// A series as the control draws it when nobody gave it a look. Where the palette starts over, a hatch, a
/// dash or a thinner line keeps it apart from the series of the same colour.
Series PaletteSeries(int number, SeriesType type);

} // namespace QmChart6

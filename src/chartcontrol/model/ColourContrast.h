#pragma once

#include "chartcontrol/model/Drawing.h"

namespace QmChart6 {

/// The contrast that text needs against its ground (WCAG 2.1, 1.4.3), and a line or a mark (1.4.11).
inline constexpr double TextContrast = 4.5;
inline constexpr double MarkContrast = 3;

/// The contrast of two colours, from 1 to 21: (L1 + 0.05) / (L2 + 0.05) of their relative luminances.
double Contrast(Colour one, Colour other);

/// A colour laid over another, with an opacity from 0 to 1.
Colour Mixed(Colour ground, Colour over, double opacity);

/// The colour itself where it has that contrast on that ground, else black or white, whichever is read
/// better.
Colour ReadableOn(Colour ground, Colour colour, double contrast = TextContrast);

/// The colour, moved towards black or white as little as gives it that contrast against the ground.
Colour WithContrast(Colour colour, Colour ground, double contrast);

/// Whether a ground is so dark that light text is read better on it.
bool IsDark(Colour ground);

} // namespace QmChart6

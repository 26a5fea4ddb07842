#pragma once

#include "chartcontrol/model/Chart.h"

namespace QmChart6 {

/// The colour of series i (from 1) in the default look: components are multiples of 40 from 0 to 200; every
/// 30 series the pattern starts over a level darker, until after four times it is as it was.
Colour SeriesDefaultColor(int i);

/// Gives the chart its standard look: white ground, one font family for every text, dotted grid lines on both
/// value axes with labels in ValueLabelFormat, a hidden secondary axis, the default series colours, and a
/// legend where there are two data columns or more (with fewer it stays as it is).
void ApplyDefaultLook(Chart& chart);

} // namespace QmChart6

#pragma once

#include "config/LookState.h"

namespace QmChart6 {

/// What a look has beyond the fields of its tables: what it was told and still holds, and whatever else
/// differs from a new chart.
Extras CaptureExtras(LookState look);

/// Takes back what a look has beyond the fields of its tables, as far as it still holds.
void ResetExtras(LookState& look);

/// Gives the look one value after the other, as far as its chart has such series, and lets it remember them.
/// What fails leaves what came before it.
void ApplyExtras(LookState& look, const Extras& extras);

} // namespace QmChart6

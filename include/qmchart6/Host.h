#pragma once

#include "qmchart6/Export.h"

namespace QmChart6 {

// For hosts that run no event loop of their own.

/// Whether windows can be shown. Without a display, charts are still made, saved and printed, unseen.
QMCHART6_EXPORT bool HasDisplay();

/// Handles events until the last viewer was closed; returns at once when none is open.
QMCHART6_EXPORT void RunUntilViewersAreClosed();

/// Handles what events there are, for at most `milliseconds`.
QMCHART6_EXPORT void PumpEvents(int milliseconds);

} // namespace QmChart6

#pragma once

#include "qmchart6/Export.h"

namespace QmChart6 {

// For hosts that run no event loop of their own.

/// Whether windows can be shown. Without a display, charts are still made, saved and printed, unseen.
QMCHART6_EXPORT bool HasDisplay();

/// Handles events until the last viewer was closed; returns at once when none is shown, and where there is no
/// display, since nobody could close it.
/// Call it, as the others, on the thread that makes the charts; another raises error 5.
QMCHART6_EXPORT void RunUntilViewersAreClosed();

/// Handles events as they come, for so many milliseconds; 0 or less handles those that wait.
QMCHART6_EXPORT void PumpEvents(int milliseconds);

} // namespace QmChart6

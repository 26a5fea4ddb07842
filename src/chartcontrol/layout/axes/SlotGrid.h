#pragma once

#include "chartcontrol/layout/axes/PlotArea.h"

namespace QmChart6 {

/// Makes the slots of `count` categories whole device pixels wide, so that equal bars and equal gaps look
/// equal, and centres them in the plot. Where that would leave too much of the plot's width empty, they stay
/// as they are.
void SnapSlots(PlotArea& area, int count);

/// Whether the slots are whole device pixels wide.
bool HasWholeSlots(const PlotArea& area);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/space/SpaceFaces.h"
#include "chartcontrol/layout/space/SpaceRow.h"

#include <vector>

namespace QmChart6 {

/// How much of its row an area or a tape fills in depth, the rest being gap.
inline constexpr double TapeDepthShare = 0.7;

/// The areas of a row: slabs from column to column, from the farthest to the nearest, and at last the faces
/// that look to the front or the back.
void LayOutSpaceAreas(const SpaceRow& row, const std::vector<SpaceTrack>& tracks);

} // namespace QmChart6

#pragma once

#include "chartcontrol/model/Chart.h"

#include <optional>

namespace QmChart6 {

/// The chart as it is drawn on a ground on which its usual texts would not be read: those whose colour nobody
/// chose are light on a dark ground, black on a middling one, and lines with them. Nothing on other grounds.
std::optional<Chart> DressedForGround(const Chart& chart);

} // namespace QmChart6

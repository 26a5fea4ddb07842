#pragma once

#include "chartcontrol/model/Chart.h"

#include <optional>

namespace QmChart6 {

/// The chart as it is drawn on a dark ground: texts and lines whose colour nobody chose are light. Nothing on
/// a light ground.
std::optional<Chart> DressedForDark(const Chart& chart);

} // namespace QmChart6

#pragma once

#include "chartcontrol/model/Chart.h"

namespace QmChart6 {

/// A small chart with the look of another: as many columns, a few rows of made-up values, no title and no
/// footnote. It offers the same kinds and is quickly drawn.
Chart SampleOf(const Chart& chart);

} // namespace QmChart6

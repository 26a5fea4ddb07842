#pragma once

#include "chartcontrol/model/Chart.h"

namespace QmChart6 {

/// The chart's table as spreadsheets take it: tab-separated, the column labels first, then each row with its
/// label. Missing values are empty; labels with tabs, line feeds or quotes are quoted.
QString TableText(const Chart& chart);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/axes/PlotArea.h"
#include "chartcontrol/model/DataGrid.h"

#include <memory>

namespace QmChart6 {

/// The samples of a series. Where several fall into one device pixel column, only those that the picture
/// needs are kept: the first, the least, the greatest and the last of the column. Gaps narrower than a column
/// may be closed.
std::shared_ptr<const Runs> CollectRuns(const Values& values, const PlotArea& area);

} // namespace QmChart6

#pragma once

namespace QmChart6 {

/// From now on assistive technology finds every chart control as a chart of series of data points: the
/// chart's title and a sentence about it, the series' names, and "category: value" for each point. Points are
/// made when they are asked for; which series or point is selected is announced.
void InstallAccessibleCharts();

} // namespace QmChart6

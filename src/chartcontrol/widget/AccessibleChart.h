#pragma once

namespace QmChart6 {

class ChartControl;

/// From now on assistive technology finds every chart control as a chart of series of data points: the
/// chart's title and a sentence about it, the series' names, and "category: value" for each point. Points are
/// made when they are asked for.
void InstallAccessibleCharts();

/// Tells assistive technology which series or data point of the control is selected.
void AnnounceSelection(ChartControl& control);

} // namespace QmChart6

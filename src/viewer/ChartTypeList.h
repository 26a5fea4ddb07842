#pragma once

#include "chartcontrol/model/Enumerations.h"

#include <QStringList>

namespace QmChart6 {

/// The chart types to choose from, in the process' language. Combination and XY are there for more than one
/// data column; with one, pie is there only while 3D is off.
QStringList ChartTypeTexts(int columnCount, bool threeD);

/// Where a chart type stands in that list.
int IndexOfChartType(ChartType type, int columnCount);

} // namespace QmChart6

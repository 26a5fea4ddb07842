#pragma once

#include "chartcontrol/model/Enumerations.h"

#include <QStringList>

namespace QmChart6 {

/// The chart types to choose from, in the process' language. Combination and XY are there for more than one
/// data column; with one, pie is there only while 3D is off.
QStringList ChartTypeTexts(int columnCount, bool threeD);

/// Where a chart type stands in that list. The types that a list lacks have a number all the same.
int IndexOfChartType(ChartType type, int columnCount);

/// The number of the chart type at a place of that list: two dimensional unless `threeD`, pie and XY always;
/// -1 where the list has no such place.
int ChartTypeAtIndex(int index, int columnCount, bool threeD);

} // namespace QmChart6

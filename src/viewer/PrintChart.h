#pragma once

#include "chartcontrol/model/Chart.h"
#include "chartcontrol/scene/Scene.h"

class QPrinter;

namespace QmChart6 {

class Viewer;

/// Prints the viewer's chart on one page of the default printer. Raises 482 where there is no printer, or
/// where it fails.
void PrintChart(Viewer& viewer);

/// The chart as paper wants it: white ground, no frame.
Chart ChartOnPaper(Chart chart);

/// Paints a chart that a window shows at `windowSize` (points) on the printer's page, as ChartOnPaper gives
/// it, as large as the printable area allows in the window's proportions, fonts grown with it. Raises 482
/// where the printer cannot print.
void PrintPage(const Chart& chart, Size windowSize, QPrinter& printer);

} // namespace QmChart6

#pragma once

#include "chartcontrol/model/Chart.h"
#include "chartcontrol/scene/Scene.h"

class QPrinter;

namespace QmChart6 {

class ChartControl;

/// Prints a chart, as its control shows it, on one page of the printer that the person at the desk chooses,
/// or of the process' printer where there is nobody. The clipboard is empty afterwards. When they cancel,
/// nothing is done. Raises 482 where there is no printer, or where it fails; 6 where the page is too large to
/// be measured. The chart is the same afterwards in any case.
void PrintChart(ChartControl& chart);
/// The same on the printer of that name, nobody being asked.
void PrintChart(ChartControl& chart, const QString& printerName);

/// Shows the person the page that would be printed, a wide one for a wide chart, from where it can be
/// printed.
void PreviewChart(ChartControl& chart);

/// Paints a chart that a window shows at `windowSize` (points) on the printer's page, as ChartOnPaper gives
/// it, as large as the printable area allows in the window's proportions. The
/// document bears the chart's title. Raises as PrintChart.
void PrintPage(const Chart& chart, Size windowSize, QPrinter& printer);

/// The error of a printer that is not there; its text tells the names that there are.
[[noreturn]] void RaiseNoPrinterNamed(const QString& name);

} // namespace QmChart6

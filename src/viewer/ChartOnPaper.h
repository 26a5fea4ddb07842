#pragma once

#include "chartcontrol/model/Chart.h"

namespace QmChart6 {

/// How much a chart grows from a window to a page: the page's width and height, in units of 1/40 inch, become
/// whole logical pixels, and their mean is divided by the window's width in logical pixels. Raises 6 where
/// one of these numbers needs more than 32 bits, or where the window has no width.
double PageFactor(double pageWidth, double pageHeight, double windowWidth);

/// The chart as paper wants it: white ground, no frame, fonts and places `factor` times as large. The chart
/// itself stays as it is.
Chart ChartOnPaper(Chart chart, double factor);

} // namespace QmChart6

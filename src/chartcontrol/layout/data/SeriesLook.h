#pragma once

#include "chartcontrol/model/Chart.h"
#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/scene/SceneBuilder.h"

namespace QmChart6 {

// How a series is drawn, decided once for the plot and for the legend.

/// What a series is drawn with. The 3D types are the same marks in space.
Mark MarkOfSeries(const Chart& chart, int series);

/// Whether columns belong together in pairs, as in an XY chart.
bool PairsColumns(const Chart& chart);

/// The style of a series' markers; an automatic one goes by the series' number.
MarkerStyle MarkerStyleOf(const Series& series, int number);

/// Whether line and markers are drawn; a series that would show neither shows its markers.
struct LineLook {
    bool line = true;
    bool markers = false;
};
LineLook LineLookOf(const Series& series);

/// The colour that stands for a brush where no pattern can be drawn: its fill's, or the pattern's where the
/// fill would not be seen on the chart's ground.
Colour ShownColour(const Chart& chart, const Brush& brush);

/// The stroke of the series' line, in the shown colour of all its points.
Stroke LineStrokeOf(const Chart& chart, const Series& series);

/// The outline of a mark of that look: its own pen; of patterned marks a fine line, so that their height is
/// read, unless they are so small that they are drawn plain.
Stroke EdgeOf(const Chart& chart, const DataPoint& look, bool plain = false);

/// The series that are drawn: in an XY chart those that take the next column as their y, otherwise all.
bool IsDrawn(const Chart& chart, int series);

/// The name that the legend shows: the series' own; for a pair of columns "x / y".
QString LegendName(const Chart& chart, int series);

} // namespace QmChart6

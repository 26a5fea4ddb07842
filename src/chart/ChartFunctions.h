#pragma once

#include "chartcontrol/model/Chart.h"

#include <cstdint>

namespace QmChart6 {

// The operations behind the options of a chart: control bar, dialogs and stored looks all go through these,
// so that an option has the same effect wherever it is set. Values are the enumerations' plain numbers; a
// number without a meaning raises 380, an axis id that is none 5. None of them paints: whoever called
// refreshes the chart.

/// A truth value as hosts and stored looks pass it, 16 bits wide: true is -1, false 0. Where nothing else is
/// said any number but 0 is true.
using Truth = std::int16_t;
inline constexpr Truth True = -1;
inline constexpr Truth False = 0;

void SetGridLineStyle(Chart& chart, int style, int axisId);
/// The axis is hidden unless all bits of `visible` are set: 1 hides it, as 0 does.
void SetAxisVisible(Chart& chart, Truth visible, int axisId);
void SetAxisTitleVisible(Chart& chart, Truth visible, int axisId);
/// From here on the legend no longer follows the number of series.
void SetLegendVisible(Chart& chart, Truth visible);
void SetStacked(Chart& chart, Truth stacked);
/// On: both value axes become scales of the shares of a row, with labels in percent. Off: linear, with labels
/// in ValueLabelFormat; the basis of the shares stays.
void SetFullStacked(Chart& chart, Truth on);
void SetSeriesMarkers(Chart& chart, Truth show);
void SetSeriesLines(Chart& chart, Truth show);
/// Exchanges rows and columns as series. The titles of the X and the Z axis change places; series that are
/// added get the default colour of their number, and labels like those of the last series before.
void SetSeriesInRows(Chart& chart, Truth inRows);
void SetPieLabelPosition(Chart& chart, int position);
/// A colour as one number: red in the low byte, then green, then blue.
void SetBackgroundColor(Chart& chart, std::int32_t colour);
void SetProjection(Chart& chart, int projection);

/// The location that stands for `location` in charts of a type; itself where they have it.
LabelLocation FittedLocation(ChartType type, LabelLocation location);

/// Moves data labels to a location that the present type of chart has.
void FitDataLabelLocations(Chart& chart);

/// Whether the series' labels show the component of bit 0 (value), 1 (percent) or 2 (series name): 0 none
/// does, 1 all do, 2 some do.
std::int16_t GetLabelComponentState(const SeriesCollection& series, int bit);

} // namespace QmChart6

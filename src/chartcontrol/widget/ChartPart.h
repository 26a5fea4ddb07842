#pragma once

#include "chartcontrol/layout/Layout.h"

#include <optional>

namespace QmChart6 {

/// The part code of no part at all: what lies outside the control, and what is selected while nothing is.
inline constexpr int NoPart = -1;

/// A part of a chart as hosts of the control name it: its code and up to four indexes, 0 where one has no
/// meaning. Title, footnote and legend have none, the plot has 1 at one of its grid lines. Series, data
/// points and their labels: the series and the data point (0: none in particular). Axes, their labels and
/// titles: the axis id and its index, 1; of labels, also their level, 1.
struct ChartPart {
    int part = NoPart;
    int index1 = 0;
    int index2 = 0;
    int index3 = 0;
    int index4 = 0;

    [[nodiscard]] bool IsNone() const { return part == NoPart; }
    /// The plot at one of its grid lines.
    [[nodiscard]] bool IsGridLine() const;
    /// A series, or a data point of one.
    [[nodiscard]] bool IsOfSeries() const;
    friend bool operator==(const ChartPart&, const ChartPart&) = default;
};

/// The part that covers a place, in points; the chart itself where no other does.
ChartPart PartAt(const LaidOutChart& laidOut, Point place);

/// The shapes of a part that is not NoPart, as Find takes them: a series' shapes whatever point is named.
Part ShapesOf(const ChartPart& part);

/// Whether the chart has the part, as it has NoPart; a series or point may have gone with its data.
bool HasPart(const Chart& chart, const ChartPart& part);

/// Raises 380 for a code that stands for no part, 9 for a series or data point and 5 for an axis that the
/// chart does not have. NoPart is fine.
void RequirePart(const Chart& chart, const ChartPart& part);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/text/Ground.h"
#include "chartcontrol/layout/text/TextBlock.h"

#include <vector>

namespace QmChart6 {

/// A slice's label: its text piece by piece, and the middle of its slice in turns clockwise from 12 o'clock.
struct PieLabel {
    Part part;
    Part slice;
    QStringList text;
    double turn = 0;
    /// The slice's part of the pie; when there is no room, the labels of the smallest slices go first.
    double share = 0;
    const DataPoint* look = nullptr;
};

/// The circle that labels belong to, and the box that they must not leave.
struct PieCircle {
    Point center;
    double radius = 0;
    Box cell;
};

/// How far the outside labels of a pie reach beyond it, to each side and above or below.
Size OutsideReach(const std::vector<PieLabel>& labels, const TextMeasurer& measurer);

/// Labels on their slices, as far out as all of each lies on its slice. Gives those that have no room there.
std::vector<PieLabel> PlaceInside(const LayoutContext& context, const std::vector<PieLabel>& labels,
                                  const PieCircle& circle, Ground& ground);

/// Labels round the pie: beside their slice where they can be, moved up or down where they would meet, with
/// lines that do not cross. Gives how many had no room.
int PlaceOutside(const LayoutContext& context, const std::vector<PieLabel>& labels, const PieCircle& circle,
                 Ground& ground);

} // namespace QmChart6

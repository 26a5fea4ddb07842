#pragma once

#include "chartcontrol/model/Chart.h"
#include "chartcontrol/scene/Geometry.h"

#include <optional>

namespace QmChart6 {

// Moving title, footnote and legend about in a chart. Lengths are points.

/// Where a part that can be moved stands; null for the code of any other.
Location* MovableLocation(Chart& chart, int part);

/// Where a part comes to stand: by hand, or at one of the places that layout has for it.
struct HandPlace {
    LocationType type = LocationType::Custom;
    Box box;
};

/// A box moved by so much, but not out of a chart of that size.
Box MovedBox(const Box& box, Point by, const Size& chart);

/// Where such a box stands: right at one of the eight places
/// or in the middle where it comes near to them.
HandPlace PlaceMoved(const Box& box, Point by, const Size& chart);

/// Gives the location the place of a part whose box was there before.
void MoveTo(Location& location, const Box& before, const HandPlace& place, const Size& chart);

/// The place that layout gives the part by itself.
Location AutomaticLocation(int part);

} // namespace QmChart6

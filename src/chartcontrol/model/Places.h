#pragma once

#include "chartcontrol/model/Drawing.h"

namespace QmChart6 {

/// Where a part that was placed by hand stands in a chart of a size: at the same shares of the whole as in
/// the chart that its place was chosen in.
[[nodiscard]] CoordinateRect RectIn(const Location& location, Coordinate chartSize);

/// The same place, told for a chart of that size. One that is told for no size is told for this one from here
/// on.
[[nodiscard]] Location LocationIn(const Location& location, Coordinate chartSize);

/// In single precision, as looks are stored: a chart that is loaded again is the same to the last pixel.
[[nodiscard]] CoordinateRect AsStored(const CoordinateRect& rect);

} // namespace QmChart6

#include "chartcontrol/model/Places.h"

namespace QmChart6 {

namespace {

Coordinate Scaled(Coordinate place, Coordinate by) {
    return {place.X * by.X, place.Y * by.Y};
}

double Single(double place) {
    return static_cast<double>(static_cast<float>(place));
}

} // namespace

CoordinateRect RectIn(const Location& location, Coordinate chartSize) {
    const Coordinate& within = location.Within;
    if (within == chartSize || !(within.X > 0 && within.Y > 0)) return location.Rect;
    const Coordinate by{chartSize.X / within.X, chartSize.Y / within.Y};
    return {Scaled(location.Rect.Min, by), Scaled(location.Rect.Max, by)};
}

Location LocationIn(const Location& location, Coordinate chartSize) {
    if (location.Within == chartSize) return location;
    Location told = location;
    told.Rect = AsStored(RectIn(location, chartSize));
    told.Within = chartSize;
    return told;
}

CoordinateRect AsStored(const CoordinateRect& rect) {
    return {{Single(rect.Min.X), Single(rect.Min.Y)}, {Single(rect.Max.X), Single(rect.Max.Y)}};
}

} // namespace QmChart6

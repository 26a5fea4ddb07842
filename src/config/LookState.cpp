#include "config/LookState.h"

#include "chartcontrol/model/Places.h"

#include <cmath>

namespace QmChart6 {

namespace {

/// A place by hand as shares of the chart, so finely that no rounding is seen.
void AsShares(Location& location) {
    if (location.Within == Coordinate{}) return;
    constexpr double Finest = 10000;
    location = LocationIn(location, {Finest, Finest});
    for (Coordinate* corner : {&location.Rect.Min, &location.Rect.Max})
        corner->Set(std::round(corner->X), std::round(corner->Y));
}

/// The look in one window and with one current cell, whichever it has.
LookState WithoutPlace(LookState look) {
    const LookState any;
    look.maximized = any.maximized;
    look.width = any.width;
    look.height = any.height;
    look.chart.Row = any.chart.Row;
    look.chart.Column = any.chart.Column;
    for (Location* location :
         {&look.chart.Title.Location, &look.chart.Footnote.Location, &look.chart.Legend.Location})
        AsShares(*location);
    return look;
}

} // namespace

bool LookAlike(const LookState& one, const LookState& other) {
    return WithoutPlace(one) == WithoutPlace(other);
}

} // namespace QmChart6

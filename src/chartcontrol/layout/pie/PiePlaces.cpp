#include "chartcontrol/layout/pie/PiePlaces.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace QmChart6 {

namespace {

/// How far out of its centre a slice's middle is.
constexpr double SliceShare = 0.62;

Point MiddleOf(const Slice& slice) {
    const Point center = slice.box.Center();
    if (std::abs(slice.spanAngle) >= 360) return center;
    const double middle = (slice.startAngle + slice.spanAngle / 2) * std::numbers::pi / 180;
    return {center.x + SliceShare * slice.box.Width() / 2 * std::cos(middle),
            center.y - SliceShare * slice.box.Height() / 2 * std::sin(middle)};
}

} // namespace

void PiePlaces::Add(DataPointHit point, const Slice& slice) {
    places_.insert_or_assign({point.series, point.category}, MiddleOf(slice));
}

std::optional<Point> PiePlaces::At(DataPointHit point) const {
    const auto found = places_.find({point.series, point.category});
    return found == places_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<DataPointHit> PiePlaces::Nearest(int series, Point place) const {
    std::optional<DataPointHit> nearest;
    double least = std::numeric_limits<double>::infinity();
    for (auto at = places_.lower_bound({series, 0}); at != places_.end() && at->first.first == series; ++at) {
        const double distance = std::hypot(at->second.x - place.x, at->second.y - place.y);
        if (distance < least) least = distance, nearest = DataPointHit{series, at->first.second};
    }
    return nearest;
}

} // namespace QmChart6

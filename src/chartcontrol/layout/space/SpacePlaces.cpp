#include "chartcontrol/layout/space/SpacePlaces.h"

#include "chartcontrol/scene/Outline.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

using Stands = std::vector<SpacePlaces::Stand>;

/// The stand of a category, or the end.
Stands::const_iterator Find(const Stands& stands, int category) {
    const auto found =
        std::lower_bound(stands.begin(), stands.end(), category,
                         [](const SpacePlaces::Stand& stand, int wanted) { return stand.category < wanted; });
    return found != stands.end() && found->category == category ? found : stands.end();
}

/// The category of the stand that is least far; of equal ones the first.
template<class Distance>
std::optional<int> Least(Stands::const_iterator begin, Stands::const_iterator end, Distance distance) {
    const auto found = std::min_element(
        begin, end, [&](const auto& left, const auto& right) { return distance(left) < distance(right); });
    return found == end ? std::nullopt : std::optional(found->category);
}

} // namespace

SpacePlaces::SpacePlaces(int series, int categories)
    : tracks_(static_cast<std::size_t>(series)), categories_(categories) {}

void SpacePlaces::Add(int series, const Stand& stand, bool joined) {
    Track& track = tracks_[static_cast<std::size_t>(series) - 1];
    track.joined = joined;
    track.stands.push_back(stand);
}

std::optional<Point> SpacePlaces::At(DataPointHit point) const {
    const Stands& stands = Of(point.series).stands;
    const auto found = Find(stands, point.category);
    return found == stands.end() ? std::nullopt : std::optional(found->place);
}

std::optional<DataPointHit> SpacePlaces::Nearest(int series, Point place) const {
    const Stands& stands = Of(series).stands;
    const std::optional<int> category = Least(stands.begin(), stands.end(), [&](const Stand& stand) {
        return std::hypot(stand.place.x - place.x, stand.place.y - place.y);
    });
    return category ? std::optional(DataPointHit{series, *category}) : std::nullopt;
}

std::optional<DataPointHit> SpacePlaces::OnFace(int series, int category, Point place) const {
    const Track& track = Of(series);
    std::optional<int> shown;
    if (category == 0) {
        shown = Least(track.stands.begin(), track.stands.end(), [&](const Stand& stand) {
            return DistanceToSegment(place, stand.upright[0], stand.upright[1]);
        });
    } else if (const auto begin = Find(track.stands, category); begin != track.stands.end()) {
        const auto end = track.joined && begin + 1 != track.stands.end() ? begin + 2 : begin + 1;
        shown = Least(begin, end, [&](const Stand& stand) {
            return DistanceToSegment(place, stand.edge[0], stand.edge[1]);
        });
    }
    return shown ? std::optional(DataPointHit{series, *shown}) : std::nullopt;
}

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/DataPointHit.h"
#include "chartcontrol/scene/Scene.h"

#include <map>
#include <optional>
#include <utility>

namespace QmChart6 {

/// Where the slices of the pies are: a place well inside each.
class PiePlaces {
public:
    PiePlaces() = default;
    PiePlaces(int series, int categories) : series_(series), categories_(categories) {}

    void Add(DataPointHit point, const Slice& slice);

    [[nodiscard]] std::optional<Point> At(DataPointHit point) const;
    /// Of slices at the same place, the first.
    [[nodiscard]] std::optional<DataPointHit> Nearest(int series, Point place) const;
    [[nodiscard]] int SeriesCount() const { return series_; }
    [[nodiscard]] int CategoryCount() const { return categories_; }

private:
    int series_ = 0;
    int categories_ = 0;
    std::map<std::pair<int, int>, Point> places_; // by series and category
};

} // namespace QmChart6

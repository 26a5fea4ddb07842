#pragma once

#include "chartcontrol/layout/data/DataPointHit.h"
#include "chartcontrol/layout/flat/PlottedArea.h"

#include <optional>
#include <utility>

namespace QmChart6 {

/// Where the points of a plot with categories are: the middle of a bar, otherwise where the value stands. A
/// point outside a fixed range has no place.
class FlatPlaces {
public:
    explicit FlatPlaces(PlottedArea plot) : plot_(std::move(plot)) {}

    [[nodiscard]] std::optional<Point> At(DataPointHit point) const;
    /// By x alone: the nearest category that has a value.
    [[nodiscard]] std::optional<DataPointHit> Nearest(int series, Point place) const;
    [[nodiscard]] int SeriesCount() const { return plot_.plotted.SeriesCount(); }
    [[nodiscard]] int CategoryCount() const { return plot_.plotted.CategoryCount(); }

private:
    PlottedArea plot_;
};

/// Where the points of an XY plot are. One outside a fixed range has no place.
class PairPlaces {
public:
    explicit PairPlaces(PlottedArea plot) : plot_(std::move(plot)) {}

    [[nodiscard]] std::optional<Point> At(DataPointHit point) const;
    /// Of points at the same place, the first.
    [[nodiscard]] std::optional<DataPointHit> Nearest(int series, Point place) const;
    [[nodiscard]] int SeriesCount() const { return plot_.plotted.SeriesCount(); }
    [[nodiscard]] int CategoryCount() const { return plot_.plotted.CategoryCount(); }

private:
    PlottedArea plot_;
};

} // namespace QmChart6

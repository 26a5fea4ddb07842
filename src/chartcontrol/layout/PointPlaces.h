#pragma once

#include "chartcontrol/layout/flat/FlatPlaces.h"
#include "chartcontrol/layout/pie/PiePlaces.h"
#include "chartcontrol/layout/space/SpacePlaces.h"

#include <optional>
#include <variant>
#include <vector>

namespace QmChart6 {

/// Where every data point of a laid out chart is, by what its marks were placed by. Without a plot, nowhere.
/// It needs the chart no more.
class PointPlaces {
public:
    PointPlaces() = default;
    template<class Places>
    explicit PointPlaces(Places places) : places_(std::move(places)) {}

    /// Where a data point is drawn: the middle of its mark. Nothing where it has no value or is not drawn.
    [[nodiscard]] std::optional<Point> At(DataPointHit point) const;
    /// The point of a series that is nearest to a place, in a plot with categories by x alone.
    [[nodiscard]] std::optional<DataPointHit> Nearest(int series, Point place) const;
    /// The data point that a shape of the part shows at a place; nothing for parts that are no series' mark,
    /// statistics or label.
    [[nodiscard]] std::optional<DataPointHit> Of(Part part, Point place) const;
    /// The places of a series' points, in their order.
    [[nodiscard]] std::vector<Point> OfSeries(int series) const;

private:
    [[nodiscard]] bool Has(int series) const;

    std::variant<std::monostate, FlatPlaces, PairPlaces, SpacePlaces, PiePlaces> places_;
};

} // namespace QmChart6

#include "chartcontrol/layout/PointPlaces.h"

namespace QmChart6 {

namespace {

template<class Places>
constexpr bool HasPlot = !std::is_same_v<Places, std::monostate>;

/// Asks the places of whatever kind of plot there is; without one the answer is empty.
template<class Answer, class Variant, class Ask>
Answer AskPlot(const Variant& places, Ask ask) {
    return std::visit(
        [&]<class Places>(const Places& kind) -> Answer {
            if constexpr (HasPlot<Places>)
                return ask(kind);
            else
                return {};
        },
        places);
}

bool IsOfPoints(PartCode code) {
    return code == PartCode::Series || code == PartCode::Statistics || code == PartCode::DataPoint ||
           code == PartCode::PointLabel;
}

} // namespace

bool PointPlaces::Has(int series) const {
    return series >= 1 &&
           series <= AskPlot<int>(places_, [](const auto& plot) { return plot.SeriesCount(); });
}

std::optional<Point> PointPlaces::At(DataPointHit point) const {
    if (!Has(point.series)) return std::nullopt;
    return AskPlot<std::optional<Point>>(places_, [&](const auto& plot) -> std::optional<Point> {
        if (point.category < 1 || point.category > plot.CategoryCount()) return std::nullopt;
        return plot.At(point);
    });
}

std::optional<DataPointHit> PointPlaces::Nearest(int series, Point place) const {
    if (!Has(series)) return std::nullopt;
    return AskPlot<std::optional<DataPointHit>>(
        places_, [&](const auto& plot) { return plot.Nearest(series, place); });
}

std::optional<DataPointHit> PointPlaces::Of(Part part, Point place) const {
    if (!IsOfPoints(part.code) || !Has(part.index1)) return std::nullopt;
    const auto* space = std::get_if<SpacePlaces>(&places_);
    if (space != nullptr && part.code == PartCode::Series)
        return space->OnFace(part.index1, part.index2, place);
    if (part.index2 == 0) return Nearest(part.index1, place);
    const DataPointHit own{part.index1, part.index2};
    return At(own) ? std::optional(own) : std::nullopt;
}

std::vector<Point> PointPlaces::OfSeries(int series) const {
    std::vector<Point> places;
    if (!Has(series)) return places;
    const int count = AskPlot<int>(places_, [](const auto& plot) { return plot.CategoryCount(); });
    for (int category = 1; category <= count; ++category)
        if (const std::optional<Point> place = At({series, category})) places.push_back(*place);
    return places;
}

} // namespace QmChart6

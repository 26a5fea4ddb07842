#include "chartcontrol/layout/PointAt.h"

#include "chartcontrol/layout/axes/AxesPlan.h"
#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/data/XYPairs.h"
#include "chartcontrol/scene/Anchor.h"
#include "chartcontrol/scene/HitTest.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

bool IsSeries(const Chart& chart, int series) {
    return series >= 1 && series <= chart.Plot.SeriesCollection.Count() && IsDrawn(chart, series);
}

/// The plot's box as the scene has it, for pointing at.
std::optional<Box> PlotBox(const Scene& scene) {
    for (const std::size_t index : Find(scene, {PartCode::Plot}))
        if (const auto* area = std::get_if<Rectangle>(&scene.shapes[index].geometry)) return area->box;
    return std::nullopt;
}

/// Where the categories of a flat plot stand across.
struct CategoryPlaces {
    double first = 0;
    double slot = 0;

    [[nodiscard]] double At(int category) const { return first + (category - 1) * slot; }
    [[nodiscard]] int Nearest(double x) const {
        return 1 + static_cast<int>(std::lround((x - first) / slot));
    }
};

std::optional<CategoryPlaces> PlacesOf(const Chart& chart, const Scene& scene) {
    const std::optional<Box> box = PlotBox(scene);
    const int count = chart.CategoryCount();
    if (!box || count < 1 || box->Width() <= 0) return std::nullopt;
    const bool onEnds = StandsOnEnds(chart);
    const double slot = box->Width() / (onEnds ? count - 1 : count);
    return CategoryPlaces{onEnds ? box->left : box->left + slot / 2, slot};
}

/// The category with a value that is nearest to the asked one.
std::optional<DataPointHit> NearestWithValue(const Chart& chart, int series, int asked) {
    const int count = chart.CategoryCount();
    const int category = std::clamp(asked, 1, std::max(1, count));
    for (int away = 0; away < count; ++away)
        for (const int candidate : {category - away, category + away})
            if (HasValue(chart, {series, candidate})) return DataPointHit{series, candidate};
    return std::nullopt;
}

/// What the least and the greatest of some numbers are.
struct Extremes {
    double least = std::numeric_limits<double>::infinity();
    double greatest = -std::numeric_limits<double>::infinity();

    void Add(double number) {
        least = std::min(least, number);
        greatest = std::max(greatest, number);
    }
};

/// The marks of a series that stand for many points, its statistics lines left out.
std::vector<const Shape*> RunsOf(const Chart& chart, const Scene& scene, int series) {
    const Stroke own = LineStrokeOf(chart.Plot.SeriesCollection(series));
    std::vector<const Shape*> runs;
    for (const std::size_t index : Find(scene, {PartCode::Series, series, 0})) {
        const Shape& shape = scene.shapes[index];
        if (!std::holds_alternative<Polyline>(shape.geometry) || shape.stroke == own) runs.push_back(&shape);
    }
    return runs;
}

std::span<const Point> PointsOf(const Scene& scene, const Shape& shape) {
    if (const auto* line = std::get_if<Polyline>(&shape.geometry)) return scene.PointsOf(line->points);
    if (const auto* area = std::get_if<Polygon>(&shape.geometry)) return scene.PointsOf(area->points);
    if (const auto* markers = std::get_if<MarkerRun>(&shape.geometry)) return scene.PointsOf(markers->points);
    return {};
}

/// How the values of an XY series come onto the page. A fixed range fills the plot; an automatic one shows
/// all values, so that the extremes of the values are drawn at the extremes of the marks.
class PairPlaces {
public:
    PairPlaces(const Chart& chart, const Scene& scene, int series) : pairs_(chart, series) {
        Extremes x, y, across, down;
        for (int i = 0; i < pairs_.Count(); ++i) {
            if (!pairs_.Has(i)) continue;
            x.Add(pairs_.X(i));
            y.Add(pairs_.Y(i));
        }
        for (const Shape* shape : RunsOf(chart, scene, series))
            for (const Point& point : PointsOf(scene, *shape)) {
                across.Add(point.x);
                down.Add(point.y);
            }
        const std::optional<Box> box = PlotBox(scene);
        isDrawn_ = box && across.least <= across.greatest;
        if (!isDrawn_) return;
        const bool second = chart.Plot.SeriesCollection(series).SecondaryAxis;
        const ValueScale& scaleX = chart.Plot.Axis(AxisId::X).ValueScale;
        const ValueScale& scaleY = chart.Plot.Axis(second ? AxisId::SecondaryY : AxisId::Y).ValueScale;
        x_ = scaleX.Auto ? Between(x, across.least, across.greatest)
                         : Between({scaleX.Minimum, scaleX.Maximum}, box->left, box->right);
        y_ = scaleY.Auto ? Between(y, down.greatest, down.least)
                         : Between({scaleY.Minimum, scaleY.Maximum}, box->bottom, box->top);
    }

    [[nodiscard]] bool IsDrawn() const { return isDrawn_; }
    [[nodiscard]] Point At(int index) const { return {x_.At(pairs_.X(index)), y_.At(pairs_.Y(index))}; }

    [[nodiscard]] int Nearest(Point place) const {
        int nearest = 0;
        double least = std::numeric_limits<double>::infinity();
        for (int i = 0; i < pairs_.Count(); ++i) {
            if (!pairs_.Has(i)) continue;
            const Point point = At(i);
            const double distance = std::hypot(point.x - place.x, point.y - place.y);
            if (distance < least) least = distance, nearest = i;
        }
        return nearest;
    }

private:
    static LinearMap Between(const Extremes& values, double from, double to) {
        if (values.greatest > values.least) return {values.least, values.greatest, from, to};
        return {values.least, values.least + 1, from, from}; // all alike
    }

    XYPairs pairs_;
    LinearMap x_;
    LinearMap y_;
    bool isDrawn_ = false;
};

/// The height of a chain of points at an x: where it first crosses it.
std::optional<Point> Crossing(std::span<const Point> chain, double x) {
    constexpr double rounding = 1e-6;
    for (std::size_t i = 1; i < chain.size(); ++i) {
        const Point& from = chain[i - 1];
        const Point& to = chain[i];
        const double left = std::min(from.x, to.x);
        const double right = std::max(from.x, to.x);
        if (right - left < rounding || x < left - rounding || x > right + rounding) continue;
        const double share = std::clamp((x - from.x) / (to.x - from.x), 0.0, 1.0);
        return Point{x, from.y + share * (to.y - from.y)};
    }
    return std::nullopt;
}

std::optional<Point> OnRun(const Scene& scene, const Shape& shape, double x, double slot) {
    if (const auto* bar = std::get_if<Rectangle>(&shape.geometry)) {
        if (x < bar->box.left || x > bar->box.right) return std::nullopt;
        return Point{x, bar->box.Center().y};
    }
    const std::span<const Point> points = PointsOf(scene, shape);
    if (!std::holds_alternative<MarkerRun>(shape.geometry)) return Crossing(points, x);
    for (const Point& point : points)
        if (std::abs(point.x - x) <= slot / 2) return point;
    return std::nullopt;
}

/// The face of an area in space runs along the tops and back along the bases; its points go by order.
class FrontPlaces {
public:
    FrontPlaces(const Chart& chart, const Scene& scene, int series) {
        std::size_t category = 0;
        const auto count = static_cast<std::size_t>(chart.CategoryCount());
        const auto has = [&](std::size_t at) { return HasValue(chart, {series, static_cast<int>(at) + 1}); };
        for (const Shape* shape : RunsOf(chart, scene, series)) {
            if (!std::holds_alternative<Polygon>(shape->geometry)) continue;
            const std::span<const Point> corners = PointsOf(scene, *shape);
            while (category < count && !(has(category) && category + 1 < count && has(category + 1)))
                ++category;
            std::size_t end = category;
            while (end < count && has(end)) ++end;
            const std::size_t tops = corners.size() / 2;
            for (std::size_t i = 0; i < tops && tops > 1 && end > category; ++i)
                places_.push_back(
                    {static_cast<int>(category + i * (end - category - 1) / (tops - 1)) + 1, corners[i]});
            category = end;
        }
    }

    [[nodiscard]] std::optional<int> Nearest(Point place) const {
        const auto nearest =
            std::min_element(places_.begin(), places_.end(), [&](const Top& a, const Top& b) {
                return std::abs(a.place.x - place.x) < std::abs(b.place.x - place.x);
            });
        return nearest == places_.end() ? std::nullopt : std::optional(nearest->category);
    }
    [[nodiscard]] std::optional<Point> At(int category) const {
        for (const Top& top : places_)
            if (top.category == category) return top.place;
        return std::nullopt;
    }

private:
    struct Top {
        int category;
        Point place;
    };
    std::vector<Top> places_;
};

/// The largest of the shapes that show the point alone.
const Shape* OwnMark(const Scene& scene, DataPointHit point) {
    const Shape* mark = nullptr;
    const auto area = [](const Shape& shape) { return shape.bounds.Width() * shape.bounds.Height(); };
    for (const std::size_t index : Find(scene, {PartCode::Series, point.series, point.category})) {
        const Shape& shape = scene.shapes[index];
        if (mark == nullptr || area(shape) > area(*mark)) mark = &shape;
    }
    return mark;
}

} // namespace

bool HasValue(const Chart& chart, DataPointHit point) {
    const bool isThere =
        IsSeries(chart, point.series) && point.category >= 1 && point.category <= chart.CategoryCount();
    if (!isThere) return false;
    if (chart.chartType() == ChartType::XY2D) return XYPairs(chart, point.series).Has(point.category - 1);
    return !std::isnan(chart.SeriesValues(point.series)[point.category - 1]);
}

std::optional<DataPointHit> PointAt(const Chart& chart, const Scene& scene, Part part, Point place) {
    const bool isPoint = part.code == PartCode::Series || part.code == PartCode::DataPoint ||
                         part.code == PartCode::PointLabel;
    if (!isPoint || !IsSeries(chart, part.index1)) return std::nullopt;
    const int series = part.index1;
    if (part.index2 > 0) {
        const DataPointHit own{series, part.index2};
        return HasValue(chart, own) ? std::optional(own) : std::nullopt;
    }
    if (chart.chartType() == ChartType::XY2D) {
        const PairPlaces places(chart, scene, series);
        if (!places.IsDrawn()) return std::nullopt;
        return DataPointHit{series, places.Nearest(place) + 1};
    }
    if (Is3D(chart.chartType())) {
        const std::optional<int> category = FrontPlaces(chart, scene, series).Nearest(place);
        return category ? std::optional(DataPointHit{series, *category}) : std::nullopt;
    }
    const std::optional<CategoryPlaces> places = PlacesOf(chart, scene);
    return places ? NearestWithValue(chart, series, places->Nearest(place.x)) : std::nullopt;
}

std::optional<Point> PlaceOfPoint(const Chart& chart, const Scene& scene, DataPointHit point) {
    if (!HasValue(chart, point)) return std::nullopt;
    if (chart.chartType() == ChartType::XY2D) {
        const PairPlaces places(chart, scene, point.series);
        return places.IsDrawn() ? std::optional(places.At(point.category - 1)) : std::nullopt;
    }
    if (Is3D(chart.chartType()))
        if (const auto top = FrontPlaces(chart, scene, point.series).At(point.category)) return top;
    if (const Shape* mark = OwnMark(scene, point)) return AnchorOf(scene, *mark);
    const std::optional<CategoryPlaces> places = PlacesOf(chart, scene);
    if (!places || Is3D(chart.chartType())) return std::nullopt;
    for (const Shape* shape : RunsOf(chart, scene, point.series))
        if (const auto place = OnRun(scene, *shape, places->At(point.category), places->slot)) return place;
    return std::nullopt;
}

} // namespace QmChart6

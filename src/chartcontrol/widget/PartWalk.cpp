#include "chartcontrol/widget/PartWalk.h"

#include "chartcontrol/layout/data/DataPointHit.h"
#include "chartcontrol/layout/data/SeriesLook.h"

#include <algorithm>
#include <set>

namespace QmChart6 {

namespace {

constexpr int AxisCount = 4;

/// The part and first index of everything that a scene shows.
class Shown {
public:
    explicit Shown(const Scene& scene) {
        for (const Shape& shape : scene.shapes) parts_.insert({shape.part.code, shape.part.index1});
    }
    [[nodiscard]] bool Has(PartCode code) const {
        const auto at = parts_.lower_bound({code, 0});
        return at != parts_.end() && at->first == code;
    }
    [[nodiscard]] bool Has(PartCode code, int index1) const { return parts_.contains({code, index1}); }

private:
    std::set<std::pair<PartCode, int>> parts_;
};

bool IsSame(const ChartPart& one, const ChartPart& other) {
    if (one.IsOfSeries() && other.IsOfSeries()) return one.index1 == other.index1;
    return one.part == other.part && one.index1 == other.index1;
}

ChartPart SeriesPart(int series, int point) {
    return {static_cast<int>(PartCode::Series), series, point};
}

} // namespace

std::vector<ChartPart> WalkOrder(const Chart& chart, const Scene& scene) {
    const Shown shown(scene);
    std::vector<ChartPart> order;
    const auto add = [&](PartCode code) {
        if (shown.Has(code)) order.push_back({static_cast<int>(code)});
    };
    const auto addAxis = [&](PartCode code, int axis) {
        if (!shown.Has(code, axis)) return false;
        order.push_back({static_cast<int>(code), axis, 1, code == PartCode::AxisLabel ? 1 : 0});
        return true;
    };
    add(PartCode::Title);
    add(PartCode::Plot);
    for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series)
        if (shown.Has(PartCode::Series, series)) order.push_back(SeriesPart(series, 0));
    for (int axis = 0; axis < AxisCount; ++axis)
        if (!addAxis(PartCode::Axis, axis)) addAxis(PartCode::AxisLabel, axis);
    for (int axis = 0; axis < AxisCount; ++axis) addAxis(PartCode::AxisTitle, axis);
    add(PartCode::Legend);
    add(PartCode::Footnote);
    return order;
}

std::optional<ChartPart> NextPart(const std::vector<ChartPart>& order, const ChartPart& current,
                                  bool forward) {
    if (order.empty()) return std::nullopt;
    const auto at = std::find_if(order.begin(), order.end(),
                                 [&](const ChartPart& part) { return IsSame(part, current); });
    if (at == order.end()) return forward ? order.front() : order.back();
    if (forward) return at + 1 == order.end() ? std::nullopt : std::optional(*(at + 1));
    return at == order.begin() ? std::nullopt : std::optional(*(at - 1));
}

std::optional<ChartPart> NextPoint(const Chart& chart, const ChartPart& current, int by) {
    if (!current.IsOfSeries() || by == 0) return std::nullopt;
    const int count = chart.CategoryCount();
    int category = current.index2 > 0 ? current.index2 + by : by > 0 ? 1 : count;
    for (; category >= 1 && category <= count; category += by)
        if (HasValue(chart, {current.index1, category})) return SeriesPart(current.index1, category);
    return std::nullopt;
}

std::optional<ChartPart> NextSeries(const Chart& chart, const ChartPart& current, int by) {
    if (!current.IsOfSeries() || by == 0) return std::nullopt;
    for (int series = current.index1 + by; series >= 1 && series <= chart.Plot.SeriesCollection.Count();
         series += by) {
        if (!IsDrawn(chart, series)) continue;
        return SeriesPart(series, HasValue(chart, {series, current.index2}) ? current.index2 : 0);
    }
    return std::nullopt;
}

} // namespace QmChart6

#include "chartcontrol/layout/space/SpaceAxes.h"

#include "chartcontrol/layout/space/EdgeLabels.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <span>
#include <utility>
#include <vector>

namespace QmChart6 {

namespace {

/// Labels below the floor take at most this part of the height.
constexpr double LabelDepthShare = 0.25;
/// While room is measured, labels may hang so far over the ends of their axis, as a part of the width.
constexpr double WidestOverhangShare = 0.15;
/// So many names may stand at unlike distances from their edge.
constexpr int MostStaggered = 12;

class SpaceAxes {
public:
    explicit SpaceAxes(AxisTexts& texts) : texts_(texts), plan_(texts.plan) {}

    void Run(bool bounded) {
        Categories(bounded);
        Values(AxisId::Y, plan_.primary, plan_.primaryMap, true);
        Values(AxisId::SecondaryY, plan_.secondary, plan_.secondaryMap, false);
        Rows();
    }

private:
    void PlaceAll(AxisId id, std::span<const EdgeLabel> labels) {
        for (const EdgeLabel& label : labels) texts_.Place(id, label.index, *label.line);
    }

    /// The labels of the values along the upright edge that is outermost, thinned by steps until most of them
    /// have a place.
    void Values(AxisId id, const ValueAxisPlan& axis, const AxisMap& map, bool left) {
        if (!texts_.Shown(id)) return;
        const SpacePoint corner = plan_.UprightEdge(left);
        const double gap = left ? -texts_.Gap(id) : texts_.Gap(id);
        const auto labelAt = [&](std::size_t number) {
            const ValueAxisPlan::Tick& tick = axis.ticks[number];
            const Point at = plan_.Page({corner.x, map.At(tick.value), corner.z});
            const TextLine line =
                texts_.LineAt(id, tick.text, {at.x + gap, at.y}, left ? TextAnchor::End : TextAnchor::Start);
            return Pushed(texts_, texts_.room, id, static_cast<int>(number) + 1, line,
                          {left ? -1.0 : 1.0, 0});
        };
        std::vector<EdgeLabel> all;
        for (std::size_t i = 0; i < axis.ticks.size(); ++i) all.push_back(labelAt(i));
        std::vector<EdgeLabel> best;
        for (std::size_t stride = 1; stride <= all.size(); ++stride) {
            if (!axis.IsRound(stride)) continue;
            std::vector<EdgeLabel> some;
            for (std::size_t i = axis.FirstOf(stride); i < all.size(); i += stride)
                if (!axis.ticks[i].text.isEmpty()) some.push_back(all[i]);
            const auto run = LongestRun(some);
            if (run.size() > best.size()) best.assign(run.begin(), run.end());
        }
        PlaceAll(id, best);
    }

    [[nodiscard]] Point CategoryPlace(double category) const {
        const double count = std::max(1, texts_.context.chart.CategoryCount());
        return plan_.Page({category / count * plan_.size.x, 0, plan_.CategoryEdgeZ()});
    }

    void Categories(bool bounded) {
        if (!texts_.Shown(AxisId::X) || plan_.columns.empty()) return;
        if (std::abs(plan_.CategorySlope()) < LeastSlope && CategoriesBelow(bounded)) return;
        const int count = texts_.context.chart.CategoryCount();
        PlaceAll(AxisId::X, ThinnedNames(texts_,
                                         {AxisId::X, CategoryPlace(0), CategoryPlace(count),
                                          [this](int category) { return CategoryPlace(category + 0.5); }},
                                         CategoriesOf(texts_.context.chart)));
    }

    /// The shortest way from one category to the next on the page.
    [[nodiscard]] double CategoryPitch(int count) const {
        const double first = std::abs(CategoryPlace(1).x - CategoryPlace(0).x);
        const double last = std::abs(CategoryPlace(count).x - CategoryPlace(count - 1).x);
        return std::max(std::min(first, last), 1e-3);
    }

    /// Below a level edge labels stand as those of flat charts do; false where not all of them are clear.
    bool CategoriesBelow(bool bounded) {
        const Chart& chart = texts_.context.chart;
        const int count = chart.CategoryCount();
        const auto x = [&](int category) { return CategoryPlace(category + 0.5).x; };
        const double upright = texts_.Shown(AxisId::Y) ? texts_.LineHeight(AxisId::Y) / 2 : 0;
        const double top =
            std::max(CategoryPlace(0).y, CategoryPlace(count).y) + std::max(texts_.Gap(AxisId::X), upright);
        const double overhang = WidestOverhangShare * texts_.box.Width();
        CategorySequence categories = CategoriesOf(chart);
        const CategoryLabelPlan labels =
            PlanCategoryLabels({categories, CategoryPitch(count), LabelDepthShare * texts_.box.Height(),
                                bounded ? std::min(x(0), x(count - 1)) - texts_.box.left : overhang,
                                bounded ? texts_.box.right - std::max(x(0), x(count - 1)) : overhang},
                               texts_.AxisOf(AxisId::X).Labels.Item(1).VtFont, texts_.context.measurer);
        Scene scene;
        SceneBuilder builder(scene);
        PlaceCategoryLabels(builder, labels, x, top);
        if (!std::ranges::all_of(scene.shapes,
                                 [this](const Shape& shape) { return texts_.room.IsClear(shape.bounds); }))
            return false;
        for (const Shape& shape : scene.shapes)
            texts_.Place(AxisId::X, shape.part.index2, std::get<TextLine>(shape.geometry));
        return true;
    }

    /// Along the edge of the floor that gives a place to most of the names.
    void Rows() {
        if (!texts_.Shown(AxisId::Z) || !plan_.hasNamedRows) return;
        const double lower = plan_.RowEdgeX();
        std::vector<EdgeLabel> best;
        for (const double x : {lower, plan_.size.x - lower}) {
            std::vector<EdgeLabel> names = RowNames(x);
            if (names.size() <= best.size()) continue;
            best = std::move(names);
            texts_.rowEdgeX = x;
        }
        PlaceAll(AxisId::Z, best);
    }

    /// None along an edge that has part of the space on both of its sides.
    [[nodiscard]] std::vector<EdgeLabel> RowNames(double x) const {
        const auto place = [this, x](double z) { return plan_.Page({x, 0, z}); };
        constexpr double beside = 2;
        const Point middle = place(plan_.size.z / 2);
        const Point outward = texts_.Outward(place(0), place(plan_.size.z));
        const Point outside{middle.x + beside * outward.x, middle.y + beside * outward.y};
        if (!texts_.room.IsBeside(outside)) return {};
        const NamedEdge edge{AxisId::Z, place(0), place(plan_.size.z),
                             [&](int row) { return place(plan_.rows[static_cast<std::size_t>(row)]); }};
        const CategorySequence names(static_cast<int>(plan_.rows.size()),
                                     [this](int row) { return texts_.context.chart.SeriesName(row + 1); });
        std::vector<EdgeLabel> even = ThinnedNames(texts_, edge, names);
        // One name of several would be taken for that of all.
        if (names.Count() > 1 && even.size() < 2) return {};
        if (names.Count() > MostStaggered) return even;
        std::vector<EdgeLabel> staggered = StaggeredNames(texts_, edge, names);
        return staggered.size() > even.size() ? staggered : even;
    }

    AxisTexts& texts_;
    const SpacePlan& plan_;
};

void LayOutTexts(const LayoutContext& context, const SpacePlan& plan, const Box& box, bool bounded) {
    AxisTexts texts(context, plan, box, bounded ? std::optional(box) : std::nullopt);
    SpaceAxes(texts).Run(bounded);
    LayOutSpaceTitles(texts);
}

} // namespace

TextLine AxisTexts::LineAt(AxisId id, const QString& text, Point at, TextAnchor anchor) const {
    const Font& font = AxisOf(id).Labels.Item(1).VtFont;
    const TextExtent extent = context.measurer.Measure(text, font);
    return {text,
            font,
            {at.x, at.y + (extent.ascent - extent.descent) / 2},
            anchor,
            0,
            extent.width,
            extent.ascent,
            extent.descent};
}

Point AxisTexts::Outward(Point from, Point to) const {
    constexpr double shortest = 0.01;
    const Point along{to.x - from.x, to.y - from.y};
    const double length = std::hypot(along.x, along.y);
    if (!(length > shortest)) return {0, 1};
    const Point across{along.y / length, -along.x / length};
    const Point space = plan.Page(plan.size * 0.5);
    const bool inward =
        across.x * ((from.x + to.x) / 2 - space.x) + across.y * ((from.y + to.y) / 2 - space.y) < 0;
    return inward ? Point{-across.x, -across.y} : across;
}

void AxisTexts::Place(AxisId id, int index, TextLine line) {
    const Box bounds = BoundsOf(line);
    room.Take(WithAir(bounds));
    labels[static_cast<std::size_t>(id)].push_back(bounds);
    context.builder.AddText({PartCode::AxisLabel, static_cast<int>(id), index}, std::move(line));
}

void LayOutSpaceAxes(const LayoutContext& context, const SpacePlan& plan, const Box& box) {
    LayOutTexts(context, plan, box, true);
}

Box WishedByAxes(const LayoutContext& context, const SpacePlan& plan, const Box& box) {
    Scene scene;
    SceneBuilder builder(scene);
    LayOutTexts({context.chart, context.request, context.measurer, builder}, plan, box, false);
    Box wished = plan.Bounds();
    for (const Shape& shape : scene.shapes) wished.Include(shape.bounds);
    return wished;
}

} // namespace QmChart6

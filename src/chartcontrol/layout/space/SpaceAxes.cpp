#include "chartcontrol/layout/space/SpaceAxes.h"

#include "chartcontrol/layout/space/AxisTexts.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <span>
#include <utility>
#include <vector>

namespace QmChart6 {

namespace {

/// Names beside an edge take at most this part of the width, those below it of the height.
constexpr double WidestNameShare = 0.2;
constexpr double LabelDepthShare = 0.25;
/// While room is measured, labels may hang so far over the ends of their axis, as a part of the width.
constexpr double WidestOverhangShare = 0.15;
/// Labels move at most so many of their heights away from their edge.
constexpr double FarthestPush = 2;
/// Edges that are steeper than this have their names at their side, not below.
constexpr double SteepShare = 0.3;
constexpr double Slack = 0.01;

/// A label that has a place, or found none.
struct Candidate {
    int index = 0;
    std::optional<TextLine> line;
};

/// The longest run of neighbours that all have a place and do not meet each other.
std::span<const Candidate> LongestRun(const std::vector<Candidate>& candidates) {
    const auto joins = [&](std::size_t i) {
        return candidates[i - 1].line && candidates[i].line &&
               !Meet(BoundsOf(*candidates[i - 1].line), BoundsOf(*candidates[i].line));
    };
    std::span<const Candidate> longest;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (i > begin && !joins(i)) begin = i;
        if (!candidates[i].line) continue;
        if (i + 1 - begin > longest.size()) longest = std::span(candidates).subspan(begin, i + 1 - begin);
    }
    return longest;
}

class SpaceAxes {
public:
    explicit SpaceAxes(AxisTexts& texts) : texts_(texts), plan_(texts.plan) {}

    void Run(bool bounded) {
        Categories(bounded);
        Rows();
        Values(AxisId::Y, plan_.primary, plan_.primaryMap, true);
        Values(AxisId::SecondaryY, plan_.secondary, plan_.secondaryMap, false);
    }

private:
    /// Moves a label away from its edge until it is clear.
    [[nodiscard]] Candidate Pushed(AxisId id, int index, TextLine line, Point outward) const {
        if (line.text.isEmpty()) return {index, {}};
        const Box wished = BoundsOf(line);
        const std::optional<Box> found =
            texts_.room.Push(wished, outward, FarthestPush * texts_.LineHeight(id));
        if (!found) return {index, {}};
        line.origin = {line.origin.x + found->left - wished.left, line.origin.y + found->top - wished.top};
        return {index, std::move(line)};
    }

    void PlaceAll(AxisId id, std::span<const Candidate> labels) {
        for (const Candidate& label : labels) texts_.Place(id, label.index, *label.line);
    }

    /// The labels of the values along the upright edge that is outermost, thinned by steps until most of them
    /// have a place.
    void Values(AxisId id, const ValueAxisPlan& axis, const AxisMap& map, bool left) {
        if (!texts_.Shown(id)) return;
        const SpacePoint corner = plan_.UprightEdge(left);
        const double gap = left ? -texts_.Gap(id) : texts_.Gap(id);
        std::vector<Candidate> all;
        int index = 0;
        for (const ValueAxisPlan::Tick& tick : axis.ticks) {
            ++index;
            if (tick.text.isEmpty()) continue;
            const Point at = plan_.Page({corner.x, map.At(tick.value), corner.z});
            const TextLine line =
                texts_.LineAt(id, tick.text, {at.x + gap, at.y}, left ? TextAnchor::End : TextAnchor::Start);
            all.push_back(Pushed(id, index, line, {left ? -1.0 : 1.0, 0}));
        }
        std::vector<Candidate> best;
        for (std::size_t stride = 1; stride <= all.size(); ++stride) {
            std::vector<Candidate> some;
            for (std::size_t i = 0; i < all.size(); i += stride) some.push_back(all[i]);
            const auto run = LongestRun(some);
            if (run.size() > best.size()) best.assign(run.begin(), run.end());
        }
        PlaceAll(id, best);
    }

    /// An edge of the floor with names along it: where each stands, and how wide they may be.
    struct NamedEdge {
        AxisId id;
        Point from;
        Point to;
        std::function<Point(int)> place;
    };

    /// Away from the edge and from the middle of the space.
    [[nodiscard]] Point Outward(const NamedEdge& edge) const {
        const Point along{edge.to.x - edge.from.x, edge.to.y - edge.from.y};
        const double length = std::max(std::hypot(along.x, along.y), 1e-9);
        const Point across{along.y / length, -along.x / length};
        const Point space = plan_.Page(plan_.size * 0.5);
        const Point middle{(edge.from.x + edge.to.x) / 2, (edge.from.y + edge.to.y) / 2};
        const bool inward = across.x * (middle.x - space.x) + across.y * (middle.y - space.y) < 0;
        return inward ? Point{-across.x, -across.y} : across;
    }

    /// Names stand beside the edge, just so far that they are clear of it.
    [[nodiscard]] Candidate NameAt(const NamedEdge& edge, Point outward, const KeptCategory& name) const {
        const double away = texts_.Gap(edge.id) + std::abs(outward.y) * texts_.LineHeight(edge.id) / 2;
        const Point at = edge.place(name.category);
        const TextBlock block =
            ElidedLine(name.text, texts_.AxisOf(edge.id).Labels.Item(1).VtFont,
                       WidestNameShare * texts_.box.Width() + Slack, texts_.context.measurer);
        const TextAnchor anchor = std::abs(outward.x) < SteepShare ? TextAnchor::Middle
                                  : outward.x < 0                  ? TextAnchor::End
                                                                   : TextAnchor::Start;
        return Pushed(edge.id, name.category + 1,
                      texts_.LineAt(edge.id, block.IsEmpty() ? QString() : block.lines.front().text,
                                    {at.x + outward.x * away, at.y + outward.y * away}, anchor),
                      outward);
    }

    [[nodiscard]] std::vector<Candidate> Best(const NamedEdge& edge,
                                              const std::vector<KeptCategory>& names) const {
        const Point outward = Outward(edge);
        std::vector<Candidate> all;
        for (const KeptCategory& name : names)
            if (!name.text.trimmed().isEmpty()) all.push_back(NameAt(edge, outward, name));
        const auto run = LongestRun(all);
        return {run.begin(), run.end()};
    }

    /// The most names that find a place along an edge, thinned by steps until they do not meet each other.
    [[nodiscard]] std::vector<Candidate> Best(const NamedEdge& edge, CategorySequence names) const {
        const double rise = std::abs(edge.to.y - edge.from.y);
        const double run = std::abs(edge.to.x - edge.from.x);
        const double most = std::max(2.0, (rise + run) / texts_.LineHeight(edge.id));
        std::vector<KeptCategory> all;
        for (int i = 0; i < names.Count() && names.Count() <= most; ++i) all.push_back({i, names.Text(i)});
        std::vector<Candidate> best = Best(edge, all);
        for (int step = 0; best.size() < all.size() || all.empty(); ++step) {
            const auto kept = names.Kept(step, most);
            if (!kept) break;
            std::vector<Candidate> some = Best(edge, *kept);
            if (some.size() > best.size()) best = std::move(some);
        }
        if (best.empty() && names.Count() > 0)
            best = Best(edge, std::vector<KeptCategory>{{0, names.Text(0)}});
        return best;
    }

    [[nodiscard]] Point CategoryPlace(double category) const {
        const double count = std::max(1, texts_.context.chart.CategoryCount());
        return plan_.Page({category / count * plan_.size.x, 0, plan_.CategoryEdgeZ()});
    }

    void Categories(bool bounded) {
        if (!texts_.Shown(AxisId::X) || plan_.columns.empty()) return;
        if (std::abs(plan_.CategorySlope()) < LeastSlope && CategoriesBelow(bounded)) return;
        const int count = texts_.context.chart.CategoryCount();
        PlaceAll(AxisId::X, Best({AxisId::X, CategoryPlace(0), CategoryPlace(count),
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

    void Rows() {
        if (!texts_.Shown(AxisId::Z) || !plan_.hasNamedRows) return;
        const auto place = [this](double z) { return plan_.Page({plan_.RowEdgeX(), 0, z}); };
        PlaceAll(AxisId::Z, Best({AxisId::Z, place(0), place(plan_.size.z),
                                  [&](int row) { return place(plan_.rows[static_cast<std::size_t>(row)]); }},
                                 CategorySequence(static_cast<int>(plan_.rows.size()), [this](int row) {
                                     return texts_.context.chart.SeriesName(row + 1);
                                 })));
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

void AxisTexts::Place(AxisId id, int index, TextLine line) {
    const Box bounds = BoundsOf(line);
    room.Take(bounds);
    LabelsOf(id).Include(bounds);
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

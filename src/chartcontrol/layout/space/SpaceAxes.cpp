#include "chartcontrol/layout/space/SpaceWalls.h"
#include "chartcontrol/layout/text/TextBlock.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>
#include <vector>

namespace QmChart6 {

namespace {

/// What labels may reach beyond their room by rounding. Points.
constexpr double Slack = 0.01;

class SpaceAxes {
public:
    SpaceAxes(const LayoutContext& context, const SpacePlan& plan, const Box& box)
        : context_(context), plan_(plan), box_(box) {}

    void Run() {
        Values(AxisId::Y, plan_.primary, plan_.primaryMap, plan_.UprightEdge(true), true);
        Values(AxisId::SecondaryY, plan_.secondary, plan_.secondaryMap, plan_.UprightEdge(false), false);
        Categories();
        Rows();
        Titles();
    }

private:
    [[nodiscard]] const Axis& AxisOf(AxisId id) const { return context_.chart.Plot.Axis(id); }
    [[nodiscard]] bool Shown(AxisId id) const {
        return plan_.furniture != Furniture::None && !AxisOf(id).AxisScale.Hide;
    }
    [[nodiscard]] double Gap(AxisId id) const { return AxesPlan::LabelGap(AxisOf(id)); }

    /// The ticks were planned for the length that the edge has on the page: no label meets another.
    void Values(AxisId id, const ValueAxisPlan& axis, const AxisMap& map, SpacePoint corner, bool left) {
        if (!Shown(id)) return;
        int index = 0;
        for (const ValueAxisPlan::Tick& tick : axis.ticks) {
            ++index;
            if (tick.text.isEmpty()) continue;
            Point at = plan_.Page({corner.x, map.At(tick.value), corner.z});
            at.x += left ? -Gap(id) : Gap(id);
            Place(id, index, LineAt(id, tick.text, at, left ? TextAnchor::End : TextAnchor::Start));
        }
    }

    /// A line of text with its middle height at a point.
    [[nodiscard]] TextLine LineAt(AxisId id, const QString& text, Point at, TextAnchor anchor) const {
        const Font& font = AxisOf(id).Labels.Item(1).VtFont;
        const TextExtent extent = context_.measurer.Measure(text, font);
        return {text,
                font,
                {at.x, at.y + (extent.ascent - extent.descent) / 2},
                anchor,
                0,
                extent.width,
                extent.ascent,
                extent.descent};
    }

    void Place(AxisId id, int index, TextLine line) {
        taken_.push_back(BoundsOf(line));
        context_.builder.AddText({PartCode::AxisLabel, static_cast<int>(id), index}, std::move(line));
    }

    [[nodiscard]] static bool Meet(const Box& one, const Box& other) {
        return one.left < other.right && other.left < one.right && one.top < other.bottom &&
               other.top < one.bottom;
    }
    [[nodiscard]] bool IsFree(const Box& wanted) const {
        return std::ranges::none_of(taken_, [&](const Box& taken) { return Meet(taken, wanted); });
    }
    [[nodiscard]] bool IsInside(const Box& wanted) const {
        const Box allowed = box_.Grown(Slack);
        return allowed.Contains({wanted.left, wanted.top}) && allowed.Contains({wanted.right, wanted.bottom});
    }

    /// An edge of the floor with names along it: where each stands, and how wide they may be.
    struct NamedEdge {
        AxisId id;
        Point from;
        Point to;
        double width = 0;
        std::function<Point(int)> place;
    };

    /// Names stand beside the edge, away from the middle of the floor, just so far that they are clear of it.
    [[nodiscard]] TextLine NameAt(const NamedEdge& edge, const KeptCategory& name) const {
        const Font& font = AxisOf(edge.id).Labels.Item(1).VtFont;
        const Point along{edge.to.x - edge.from.x, edge.to.y - edge.from.y};
        const double length = std::max(std::hypot(along.x, along.y), 1e-9);
        Point outward{along.y / length, -along.x / length};
        const Point floor = plan_.Page({plan_.size.x / 2, 0, plan_.size.z / 2});
        const Point middle{(edge.from.x + edge.to.x) / 2, (edge.from.y + edge.to.y) / 2};
        if (outward.x * (middle.x - floor.x) + outward.y * (middle.y - floor.y) < 0)
            outward = {-outward.x, -outward.y};
        const double height = context_.measurer.Measure(QStringLiteral("x"), font).Height();
        const double away = Gap(edge.id) + std::abs(outward.y) * height / 2;
        const Point at = edge.place(name.category);
        const TextBlock block = ElidedLine(name.text, font, edge.width + Slack, context_.measurer);
        return LineAt(edge.id, block.IsEmpty() ? QString() : block.lines.front().text,
                      {at.x + outward.x * away, at.y + outward.y * away},
                      outward.x < 0 ? TextAnchor::End : TextAnchor::Start);
    }

    /// Places the names if none of them covers another; those that would leave the box or cover the labels of
    /// other axes go without. False, and nothing placed, where fewer than `fewest` are left.
    bool TryNames(const NamedEdge& edge, const std::vector<KeptCategory>& names, std::size_t fewest = 2) {
        std::vector<std::pair<int, TextLine>> lines;
        for (const KeptCategory& name : names) {
            TextLine line = NameAt(edge, name);
            if (line.text.isEmpty()) continue;
            const Box bounds = BoundsOf(line);
            if (!lines.empty() && Meet(BoundsOf(lines.back().second), bounds)) return false;
            if (IsInside(bounds) && IsFree(bounds)) lines.emplace_back(name.category, std::move(line));
        }
        if (lines.size() < fewest) return false;
        for (auto& [category, line] : lines) Place(edge.id, category + 1, std::move(line));
        return true;
    }

    /// The names along an edge, thinned until none covers another.
    void Names(const NamedEdge& edge, CategorySequence names) {
        const double height =
            context_.measurer.Measure(QStringLiteral("x"), AxisOf(edge.id).Labels.Item(1).VtFont).Height();
        const double rise = std::abs(edge.to.y - edge.from.y);
        const double run = std::abs(edge.to.x - edge.from.x);
        const double most = std::max(2.0, (rise + run) / height);
        std::vector<KeptCategory> all;
        for (int i = 0; i < names.Count() && names.Count() <= most; ++i) all.push_back({i, names.Text(i)});
        if (!all.empty() && TryNames(edge, all)) return;
        for (int step = 0;; ++step) {
            const auto kept = names.Kept(step, most);
            if (!kept) break;
            if (!kept->empty() && TryNames(edge, *kept)) return;
        }
        if (names.Count() > 0) TryNames(edge, {{0, names.Text(0)}}, 1);
    }

    [[nodiscard]] Point CategoryPlace(double category) const {
        const double count = std::max(1, context_.chart.CategoryCount());
        return plan_.Page({category / count * plan_.size.x, 0, plan_.CategoryEdgeZ()});
    }

    void Categories() {
        if (!Shown(AxisId::X) || plan_.columns.empty()) return;
        if (std::abs(plan_.CategorySlope()) < LeastSlope)
            CategoriesBelow();
        else
            CategoriesBeside();
    }

    void CategoriesBelow() {
        const Chart& chart = context_.chart;
        const int count = chart.CategoryCount();
        const double pitch = std::abs(CategoryPlace(count).x - CategoryPlace(0).x) / count;
        const double top = std::max(CategoryPlace(0).y, CategoryPlace(count).y) + Gap(AxisId::X);
        const auto x = [&](int category) { return CategoryPlace(category + 0.5).x; };
        CategorySequence categories = CategoriesOf(chart);
        const CategoryLabelPlan labels =
            PlanCategoryLabels({categories, std::max(pitch, 1e-3),
                                std::max(12.0, box_.bottom - top - plan_.xTitle.Extent().height),
                                x(0) - box_.left, box_.right - x(count - 1)},
                               AxisOf(AxisId::X).Labels.Item(1).VtFont, context_.measurer);
        PlaceCategoryLabels(context_.builder, labels, x, top);
        taken_.push_back({box_.left, top,
                          std::max(CategoryPlace(0).x, CategoryPlace(count).x) + Gap(AxisId::X),
                          std::min(box_.bottom, top + labels.Depth())});
    }

    void CategoriesBeside() {
        const int count = context_.chart.CategoryCount();
        Names({AxisId::X, CategoryPlace(0), CategoryPlace(count), plan_.xLabelWidth,
               [this](int category) { return CategoryPlace(category + 0.5); }},
              CategoriesOf(context_.chart));
    }

    [[nodiscard]] bool RowsAtRight() const {
        return plan_.Page({plan_.RowEdgeX(), 0, plan_.size.z / 2}).x >=
               plan_.Page({plan_.size.x / 2, 0, plan_.size.z / 2}).x;
    }

    void Rows() {
        if (!Shown(AxisId::Z) || !(plan_.zLabelWidth > 0)) return;
        const auto place = [this](double z) { return plan_.Page({plan_.RowEdgeX(), 0, z}); };
        Names({AxisId::Z, place(0), place(plan_.size.z), plan_.zLabelWidth,
               [&](int row) { return place(plan_.rows[static_cast<std::size_t>(row)]); }},
              {static_cast<int>(plan_.rows.size()),
               [this](int row) { return context_.chart.SeriesName(row + 1); }});
    }

    void Titles() {
        const Point first = CategoryPlace(0);
        const Point last = CategoryPlace(context_.chart.CategoryCount());
        Title(AxisId::X, plan_.xTitle, (first.x + last.x) / 2, box_.bottom - plan_.xTitle.Extent().height);
        const Point left =
            plan_.Page({plan_.UprightEdge(true).x, plan_.size.y / 2, plan_.UprightEdge(true).z});
        PlaceText(context_.builder, {PartCode::AxisTitle, static_cast<int>(AxisId::Y), 1}, plan_.yTitle,
                  {box_.left, left.y, box_.right, left.y}, HorizontalAlignment::Left,
                  VerticalAlignment::Center);
        const Box above{box_.left, box_.top, box_.right, box_.top};
        PlaceText(context_.builder, {PartCode::AxisTitle, static_cast<int>(AxisId::Y), 1}, plan_.yUnit, above,
                  HorizontalAlignment::Left, VerticalAlignment::Top);
        PlaceText(context_.builder, {PartCode::AxisTitle, static_cast<int>(AxisId::SecondaryY), 1},
                  plan_.secondaryUnit, above, HorizontalAlignment::Right, VerticalAlignment::Top);
        if (!(plan_.zLabelWidth > 0)) return;
        const double middle = plan_.Page({plan_.RowEdgeX(), 0, plan_.size.z / 2}).x +
                              (RowsAtRight() ? plan_.zLabelWidth / 2 : -plan_.zLabelWidth / 2);
        Title(AxisId::Z, plan_.zTitle, middle, box_.bottom - plan_.zTitle.Extent().height);
    }

    /// Centres a title at x as far as the box allows; none where it would cover a label.
    void Title(AxisId id, const TextBlock& block, double x, double top) {
        const Size extent = block.Extent();
        const double left =
            std::clamp(x - extent.width / 2, box_.left, std::max(box_.left, box_.right - extent.width));
        const Box place{left, top, left + extent.width, top + extent.height};
        if (block.IsEmpty() || !IsFree(place)) return;
        taken_.push_back(place);
        PlaceText(context_.builder, {PartCode::AxisTitle, static_cast<int>(id), 1}, block, place,
                  HorizontalAlignment::Center, VerticalAlignment::Center);
    }

    const LayoutContext& context_;
    const SpacePlan& plan_;
    Box box_;
    /// By labels and titles.
    std::vector<Box> taken_;
};

} // namespace

void LayOutSpaceAxes(const LayoutContext& context, const SpacePlan& plan, const Box& box) {
    SpaceAxes(context, plan, box).Run();
}

} // namespace QmChart6

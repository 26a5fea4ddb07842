#include "chartcontrol/layout/space/SpaceWalls.h"
#include "chartcontrol/layout/text/Occupancy.h"
#include "chartcontrol/layout/text/TextBlock.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

class SpaceAxes {
public:
    SpaceAxes(const LayoutContext& context, const SpacePlan& plan, const Box& box)
        : context_(context), plan_(plan), box_(box), taken_(box.Grown(2)) {}

    void Run() {
        Values(AxisId::Y, plan_.primary, plan_.primaryMap, LeftmostCorner(), true);
        Values(AxisId::SecondaryY, plan_.secondary, plan_.secondaryMap, RightmostCorner(), false);
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

    /// The corner of the floor whose upright edge is outermost on the page.
    [[nodiscard]] SpacePoint Outermost(bool left) const {
        SpacePoint best;
        double reach = 0;
        bool first = true;
        for (const double x : {0.0, plan_.size.x})
            for (const double z : {0.0, plan_.size.z}) {
                const double at = plan_.Page({x, plan_.size.y / 2, z}).x * (left ? -1 : 1);
                if (!first && at <= reach) continue;
                best = {x, 0, z};
                reach = at;
                first = false;
            }
        return best;
    }
    [[nodiscard]] SpacePoint LeftmostCorner() const { return Outermost(true); }
    [[nodiscard]] SpacePoint RightmostCorner() const { return Outermost(false); }

    void Values(AxisId id, const ValueAxisPlan& axis, const AxisMap& map, SpacePoint corner, bool left) {
        if (!Shown(id)) return;
        int index = 0;
        for (const ValueAxisPlan::Tick& tick : axis.ticks) {
            Point at = plan_.Page({corner.x, map.At(tick.value), corner.z});
            at.x += left ? -Gap(id) : Gap(id);
            Label(id, ++index, tick.text, at, left ? TextAnchor::End : TextAnchor::Start);
        }
    }

    /// Places a label with its middle height at a point, where no other stands.
    bool Label(AxisId id, int index, const QString& text, Point at, TextAnchor anchor) {
        const Font& font = AxisOf(id).Labels.Item(1).VtFont;
        const TextExtent extent = context_.measurer.Measure(text, font);
        TextLine line{text,
                      font,
                      {at.x, at.y + (extent.ascent - extent.descent) / 2},
                      anchor,
                      0,
                      extent.width,
                      extent.ascent,
                      extent.descent};
        // Labels of one axis stay a little apart, too.
        Box place = BoundsOf(line);
        place.left -= 2;
        place.right += 2;
        if (!taken_.Take(place)) return false;
        context_.builder.AddText({PartCode::AxisLabel, static_cast<int>(id), index}, std::move(line));
        return true;
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
        taken_.Mark({box_.left, top, std::max(CategoryPlace(0).x, CategoryPlace(count).x) + Gap(AxisId::X),
                     std::min(box_.bottom, top + labels.Depth())});
    }

    /// Beside an edge that falls to the right labels end at it, beside one that rises they begin there.
    void CategoriesBeside() {
        const int count = context_.chart.CategoryCount();
        const bool falls = plan_.CategorySlope() > 0;
        const Font& font = AxisOf(AxisId::X).Labels.Item(1).VtFont;
        for (int category = 0; category < count; category += std::max(1, count / 400)) {
            Point at = CategoryPlace(category + 0.5);
            at.x += falls ? -Gap(AxisId::X) / 2 : Gap(AxisId::X) / 2;
            at.y += Gap(AxisId::X) + 0.2 * font.Size;
            const QString name = Elide(Printable(context_.chart.CategoryName(category + 1)).simplified(),
                                       font, plan_.xLabelWidth + 0.01, context_.measurer);
            Label(AxisId::X, category + 1, name, at, falls ? TextAnchor::End : TextAnchor::Start);
        }
    }

    [[nodiscard]] bool RowsAtRight() const {
        return plan_.Page({plan_.RowEdgeX(), 0, plan_.size.z / 2}).x >=
               plan_.Page({plan_.size.x / 2, 0, plan_.size.z / 2}).x;
    }

    void Rows() {
        if (!Shown(AxisId::Z) || !(plan_.zLabelWidth > 0)) return;
        const Font& font = AxisOf(AxisId::Z).Labels.Item(1).VtFont;
        for (std::size_t row = 0; row < plan_.rows.size(); ++row) {
            Point at = plan_.Page({plan_.RowEdgeX(), 0, plan_.rows[row]});
            at.x += RowsAtRight() ? Gap(AxisId::Z) : -Gap(AxisId::Z);
            at.y += 0.3 * font.Size;
            const int series = static_cast<int>(row) + 1;
            const QString name = Elide(Printable(context_.chart.SeriesName(series)).simplified(), font,
                                       plan_.zLabelWidth + 0.01, context_.measurer);
            Label(AxisId::Z, series, name, at, RowsAtRight() ? TextAnchor::Start : TextAnchor::End);
        }
    }

    void Titles() {
        const Point first = CategoryPlace(0);
        const Point last = CategoryPlace(context_.chart.CategoryCount());
        Title(AxisId::X, plan_.xTitle, (first.x + last.x) / 2, box_.bottom - plan_.xTitle.Extent().height);
        const Point left = plan_.Page({LeftmostCorner().x, plan_.size.y / 2, LeftmostCorner().z});
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
        if (block.IsEmpty() || !taken_.Take(place)) return;
        PlaceText(context_.builder, {PartCode::AxisTitle, static_cast<int>(id), 1}, block, place,
                  HorizontalAlignment::Center, VerticalAlignment::Center);
    }

    const LayoutContext& context_;
    const SpacePlan& plan_;
    Box box_;
    Occupancy taken_;
};

} // namespace

void LayOutSpaceAxes(const LayoutContext& context, const SpacePlan& plan, const Box& box) {
    SpaceAxes(context, plan, box).Run();
}

} // namespace QmChart6

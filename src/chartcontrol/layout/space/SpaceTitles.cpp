#include "chartcontrol/layout/space/AxisTexts.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// Titles that stand across their axis take at most these parts of the plot's room.
constexpr double WidestAside = 0.2;
constexpr double DeepestBelow = 0.2;
constexpr double WidestOfDepth = 0.3;
constexpr int MostTitleLines = 2;
constexpr double TitleGapShare = 0.35;
constexpr double UnitGap = 1;

/// The middle of something of that length that would best stand at `wished`, moved so that it stays between.
double MiddleWithin(double wished, double length, double least, double greatest) {
    return std::clamp(wished, least + length / 2, std::max(least + length / 2, greatest - length / 2));
}

Box CenteredAt(Point middle, const Size& size) {
    return {middle.x - size.width / 2, middle.y - size.height / 2, middle.x + size.width / 2,
            middle.y + size.height / 2};
}

class SpaceTitles {
public:
    explicit SpaceTitles(AxisTexts& texts) : texts_(texts), plan_(texts.plan) {}

    void Run() {
        Upright(AxisId::Y, plan_.primary, true);
        Upright(AxisId::SecondaryY, plan_.secondary, false);
        const double z = plan_.CategoryEdgeZ();
        Across(AxisId::X, plan_.Page({0, 0, z}), plan_.Page({plan_.size.x, 0, z}));
        const double x = texts_.rowEdgeX;
        if (!texts_.LabelsOf(AxisId::Z).empty())
            Across(AxisId::Z, plan_.Page({x, 0, 0}), plan_.Page({x, 0, plan_.size.z}));
    }

private:
    [[nodiscard]] bool Has(AxisId id) const {
        const AxisTitle& title = texts_.AxisOf(id).AxisTitle;
        return plan_.furniture == Furniture::All && texts_.Shown(id) && title.Visible &&
               !title.Text.isEmpty();
    }
    [[nodiscard]] static bool IsTurned(const AxisTitle& title) {
        return title.TextLayout.Orientation != Orientation::Horizontal;
    }
    [[nodiscard]] TextBlock Title(AxisId id, const QString& unit, double length) const {
        const AxisTitle& title = texts_.AxisOf(id).AxisTitle;
        return BreakText(TitleWithUnit(title.Text, unit), title.VtFont, title.TextLayout.Orientation,
                         {length, MostTitleLines}, texts_.context.measurer);
    }
    [[nodiscard]] Point Middle(SpacePoint from, SpacePoint to) const {
        const Point a = plan_.Page(from);
        const Point b = plan_.Page(to);
        return {(a.x + b.x) / 2, (a.y + b.y) / 2};
    }

    /// Moves a block away from its axis until it is clear of all else; none where it finds no room.
    void Place(AxisId id, const TextBlock& block, const Box& wished, Point step, double air) {
        if (block.IsEmpty()) return;
        const double reach = texts_.box.Width() + texts_.box.Height();
        const std::optional<Box> found = texts_.room.Push(wished, step, reach, air);
        if (!found) return;
        texts_.room.Take(*found);
        PlaceText(texts_.context.builder, {PartCode::AxisTitle, static_cast<int>(id), 1}, block, *found,
                  HorizontalAlignment::Center, VerticalAlignment::Center);
    }

    /// Beside the labels of the values, in the middle of their edge.
    void Upright(AxisId id, const ValueAxisPlan& axis, bool left) {
        if (!Has(id)) return Unit(id, axis.unit, left);
        const Box& box = texts_.box;
        const AxisTitle& title = texts_.AxisOf(id).AxisTitle;
        const TextBlock block =
            Title(id, axis.unit, IsTurned(title) ? box.Height() : WidestAside * box.Width());
        const Size size = block.Extent();
        const SpacePoint low = plan_.UprightEdge(left);
        const Point edge = Middle(low, {low.x, plan_.size.y, low.z});
        Place(id, block,
              CenteredAt({edge.x + (left ? -size.width : size.width) / 2,
                          MiddleWithin(edge.y, size.height, box.top, box.bottom)},
                         size),
              {left ? -1.0 : 1.0, 0}, TitleGapShare * title.VtFont.Size);
    }

    /// What the labels are told in stands above them, where no title tells it.
    void Unit(AxisId id, const QString& unit, bool left) {
        Box labels = Box::Nothing();
        for (const Box& label : texts_.LabelsOf(id)) labels.Include(label);
        if (unit.isEmpty() || texts_.LabelsOf(id).empty()) return;
        const TextBlock block = ElidedLine(unit, texts_.AxisOf(id).Labels.Item(1).VtFont,
                                           texts_.box.Width() / 2, texts_.context.measurer);
        const Size size = block.Extent();
        const double middle =
            MiddleWithin(left ? labels.left + size.width / 2 : labels.right - size.width / 2, size.width,
                         texts_.box.left, texts_.box.right);
        Place(id, block, CenteredAt({middle, labels.top - UnitGap - size.height / 2}, size), {0, -1}, 0);
    }

    /// Away from an edge of the floor, beyond all of the labels there.
    void Across(AxisId id, Point from, Point to) {
        if (!Has(id)) return;
        const Box& box = texts_.box;
        const AxisTitle& title = texts_.AxisOf(id).AxisTitle;
        const double widest = id == AxisId::X ? 1 : WidestOfDepth;
        const TextBlock block =
            Title(id, {}, IsTurned(title) ? DeepestBelow * box.Height() : widest * box.Width());
        const Size size = block.Extent();
        const Point middle{(from.x + to.x) / 2, (from.y + to.y) / 2};
        const Point outward = texts_.Outward(from, to);
        const double away = Reach(id, middle, outward) + std::abs(outward.x) * size.width / 2 +
                            std::abs(outward.y) * size.height / 2;
        const Point at{middle.x + outward.x * away, middle.y + outward.y * away};
        Place(id, block, CenteredAt({MiddleWithin(at.x, size.width, box.left, box.right), at.y}, size),
              outward, TitleGapShare * title.VtFont.Size);
    }
    /// How far the labels of an axis reach in a direction.
    [[nodiscard]] double Reach(AxisId id, Point from, Point direction) const {
        double reach = 0;
        for (const Box& label : texts_.LabelsOf(id))
            reach =
                std::max(reach, ((direction.x > 0 ? label.right : label.left) - from.x) * direction.x +
                                    ((direction.y > 0 ? label.bottom : label.top) - from.y) * direction.y);
        return reach;
    }

    AxisTexts& texts_;
    const SpacePlan& plan_;
};

} // namespace

void LayOutSpaceTitles(AxisTexts& texts) {
    SpaceTitles(texts).Run();
}

} // namespace QmChart6

#include "chartcontrol/layout/axes/AxesPlan.h"

#include "chartcontrol/layout/axes/HeadRoom.h"
#include "chartcontrol/layout/axes/SlotGrid.h"

#include <algorithm>
#include <array>

namespace QmChart6 {

namespace {

constexpr double LabelGapShare = 0.55;
constexpr double TitleGapShare = 0.55;
/// Labels of categories take at most this part of the height; labels that hang over the left edge, of the
/// width.
constexpr double DeepestLabelShare = 0.33;
constexpr double WidestOverhangShare = 0.25;
constexpr int MostTitleLines = 2;
/// A margin that is so much wider than needed is no rounding. Points.
constexpr double LeastWaste = 2;
/// Each pass fits the labels to the box that the pass before left. Margins only grow, so that it comes to
/// rest.
constexpr int MostPasses = 8;

class AxesPlanner {
public:
    AxesPlanner(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                const Box& box, Furniture furniture)
        : context_(context), demand_(demand), box_(box), furniture_(furniture),
          categories_(CategoriesOf(context.chart)), primaryRoom_(HeadRoomOf(context, plotted, false)),
          secondaryRoom_(HeadRoomOf(context, plotted, true)) {
        plan_.showX = Shown(AxisId::X);
        plan_.showY = Shown(AxisId::Y);
        plan_.showSecondary = Shown(AxisId::SecondaryY);
        const DataGrid& grid = context.chart.DataGrid;
        named_ = context.chart.Plot.DataSeriesInRow ? grid.HasColumnLabels() : grid.HasRowLabels();
    }

    AxesPlan Run() {
        BreakTitles();
        bool isUprightPlanned = FitMargins();
        // Labels that were hoped to reach beyond the plot may in the end stand so that they do not.
        const bool areTurned = plan_.categories.way == CategoryLabelPlan::Way::Turned;
        if (!areTurned && margins_.left > NeededLeft() + LeastWaste) {
            hopesForOverhang_ = false;
            isUprightPlanned = FitMargins();
        }
        FitBox();
        if (!isUprightPlanned) PlanUpright();
        PlanAcross({});
        // Those that found less room to the sides than was hoped for may reach deeper.
        const double below = margins_.bottom;
        GrowEnds();
        if (margins_.bottom > below) {
            FitBox();
            PlanUpright();
        }
        FitMaps();
        return plan_;
    }

private:
    [[nodiscard]] const Axis& AxisOf(AxisId id) const { return context_.chart.Plot.Axis(id); }
    [[nodiscard]] bool Shown(AxisId id) const {
        return furniture_ != Furniture::None && !AxisOf(id).AxisScale.Hide;
    }

    [[nodiscard]] bool HasTitle(AxisId id) const {
        const AxisTitle& title = AxisOf(id).AxisTitle;
        return furniture_ == Furniture::All && !AxisOf(id).AxisScale.Hide && title.Visible &&
               !title.Text.isEmpty();
    }
    [[nodiscard]] TextBlock Title(AxisId id, const QString& unit) const {
        if (!HasTitle(id)) return {};
        const AxisTitle& title = AxisOf(id).AxisTitle;
        const bool across = id == AxisId::X;
        const bool upright = title.TextLayout.Orientation != Orientation::Horizontal;
        // A title that runs along its axis may be as long as the box; one across it only takes a third.
        const double along = across ? box_.Width() : box_.Height() - plan_.xTitle.Extent().height;
        const double aside = (across ? box_.Height() : box_.Width()) / 3;
        const double length = across == upright ? aside : along;
        return BreakText(TitleWithUnit(title.Text, unit), title.VtFont, title.TextLayout.Orientation,
                         {length, MostTitleLines}, context_.measurer);
    }
    /// The unit by itself, in the font of the labels.
    [[nodiscard]] TextBlock Unit(AxisId id, const QString& unit) const {
        if (unit.isEmpty() || HasTitle(id) || !Shown(id)) return {};
        return ElidedLine(unit, AxisOf(id).Labels.Item(1).VtFont, box_.Width() / 2, context_.measurer);
    }
    /// Breaks the titles, anew where the units that they tell have changed.
    void BreakTitles() {
        const Units units{plan_.across.unit, plan_.primary.unit, plan_.secondary.unit};
        if (titlesAreBroken_ && units == units_) return;
        units_ = units;
        titlesAreBroken_ = true;
        plan_.xTitle = HasTitle(AxisId::X) ? Title(AxisId::X, units[0]) : Unit(AxisId::X, units[0]);
        plan_.yTitle = Title(AxisId::Y, units[1]);
        plan_.yUnit = Unit(AxisId::Y, units[1]);
        plan_.secondaryTitle = Title(AxisId::SecondaryY, units[2]);
        plan_.secondaryUnit = Unit(AxisId::SecondaryY, units[2]);
    }
    [[nodiscard]] double TitlesLeft() const { return TitleRoom(AxisId::Y, plan_.yTitle.Extent().width); }
    [[nodiscard]] double TitlesRight() const {
        return TitleRoom(AxisId::SecondaryY, plan_.secondaryTitle.Extent().width);
    }
    [[nodiscard]] double TitlesBelow() const { return TitleRoom(AxisId::X, plan_.xTitle.Extent().height); }
    [[nodiscard]] double Above() const {
        return HalfLabel() + std::max(plan_.yUnit.Depth(), plan_.secondaryUnit.Depth());
    }

    /// Whether it came to rest, so that the upright axes are planned for the box as it is.
    bool FitMargins() {
        plan_.gapBelow = std::max(AxesPlan::LabelGap(AxisOf(AxisId::X)), HalfLabel());
        margins_ = {TitlesLeft(), Above(), TitlesRight(), TitlesBelow() + HalfLabel()};
        for (int pass = 0; pass < MostPasses; ++pass) {
            const Box before = margins_;
            FitBox();
            PlanUpright();
            BreakTitles();
            GrowSides();
            FitBox();
            PlanAcross(LeftOverhang());
            BreakTitles();
            GrowEnds();
            if (margins_ == before) return true;
        }
        return false;
    }
    void GrowSides() {
        Grow(margins_.top, Above());
        Grow(margins_.left, TitlesLeft() + LabelRoom(AxisId::Y, plan_.primary.LabelWidth()));
        Grow(margins_.right, TitlesRight() + LabelRoom(AxisId::SecondaryY, plan_.secondary.LabelWidth()));
    }
    void GrowEnds() {
        Grow(margins_.bottom, TitlesBelow() + std::max(HalfLabel(), RoomBelow()));
        LeaveRoomForOverhang();
    }

    [[nodiscard]] double RoomBelow() const {
        const double depth = AcrossDepth();
        return plan_.showX && depth > 0 ? depth + plan_.gapBelow : 0;
    }

    static void Grow(double& margin, double needed) { margin = std::max(margin, needed); }

    [[nodiscard]] double TitleRoom(AxisId id, double depth) const {
        return depth > 0 ? depth + AxesPlan::TitleGap(AxisOf(id)) : 0;
    }
    [[nodiscard]] double LabelRoom(AxisId id, double depth) const {
        return Shown(id) && depth > 0 ? depth + AxesPlan::LabelGap(AxisOf(id)) : 0;
    }
    /// The end labels of the upright axes reach half their height beyond the plot.
    [[nodiscard]] double HalfLabel() const {
        double half = 0;
        for (const AxisId id : {AxisId::Y, AxisId::SecondaryY})
            if (Shown(id)) half = std::max(half, 0.6 * AxisOf(id).Labels.Item(1).VtFont.Size);
        return half;
    }

    void FitBox() {
        Box& box = plan_.area.box;
        box = {box_.left + margins_.left, box_.top + margins_.top, box_.right - margins_.right,
               box_.bottom - margins_.bottom};
        box.right = std::max(box.right, box.left + 1);
        box.bottom = std::max(box.bottom, box.top + 1);
        const int count = std::max(1, context_.chart.CategoryCount());
        plan_.area.slot = box.Width() / (demand_.onEnds ? count - 1 : count);
        plan_.area.firstX = demand_.onEnds ? box.left : box.left + plan_.area.slot / 2;
        plan_.area.pixelsPerPoint = context_.request.pixelsPerPoint;
        if (demand_.hasBars) SnapSlots(plan_.area, count);
    }

    void PlanUpright() {
        const double length = plan_.area.box.Height();
        const AxisDemand primary = WithHeadRoom(demand_.primary, primaryRoom_, demand_.keepZero, length);
        plan_.primary =
            PlanValueAxis(context_, AxisOf(AxisId::Y), {primary, demand_.keepZero, length, false});
        // Without series of its own the second axis mirrors the first.
        const Axis& secondary = AxisOf(AxisId::SecondaryY);
        if (!demand_.usesSecondary && !IsSeen(secondary)) {
            plan_.secondary = plan_.primary;
            return;
        }
        const AxisDemand onSecond =
            demand_.usesSecondary ? WithHeadRoom(demand_.secondary, secondaryRoom_, demand_.keepZero, length)
                                  : primary;
        plan_.secondary = PlanValueAxis(context_, secondary, {onSecond, demand_.keepZero, length, false});
    }
    [[nodiscard]] static bool IsSeen(const Axis& axis) {
        return !axis.AxisScale.Hide || axis.AxisGrid.MajorPen.Style != PenStyle::None;
    }

    /// Margins may still grow by so much for the sake of labels that reach beyond the plot.
    struct Overhang {
        double left = 0;
        double right = 0;
    };
    [[nodiscard]] double MostOverhang() const { return WidestOverhangShare * box_.Width(); }
    [[nodiscard]] Overhang LeftOverhang() const {
        if (!hopesForOverhang_) return {};
        return {std::max(0.0, TitlesLeft() + MostOverhang() - margins_.left),
                std::max(0.0, TitlesRight() + MostOverhang() - margins_.right)};
    }

    void PlanAcross(Overhang overhang) {
        if (demand_.pairsColumns) {
            plan_.across = PlanValueAxis(context_, AxisOf(AxisId::X),
                                         {demand_.across, false, plan_.area.box.Width(), true});
            return;
        }
        if (!plan_.showX || !named_) return;
        const PlotArea& area = plan_.area;
        plan_.categories =
            PlanCategoryLabels({categories_, area.slot, DeepestLabelShare * box_.Height(),
                                area.firstX - box_.left + overhang.left,
                                box_.right - area.CategoryX(categories_.Count() - 1) + overhang.right},
                               AxisOf(AxisId::X).Labels.Item(1).VtFont, context_.measurer);
    }

    [[nodiscard]] double AcrossDepth() const {
        return demand_.pairsColumns ? plan_.across.line.Height() : plan_.categories.Depth();
    }

    /// How far labels of the horizontal axis reach beyond the plot.
    [[nodiscard]] Overhang OverhangOf() const {
        Overhang overhang;
        if (demand_.pairsColumns && plan_.showX)
            overhang = {plan_.across.ticks.front().width / 2, plan_.across.ticks.back().width / 2};
        for (const CategoryLabelPlan::Label& label : plan_.categories.labels) {
            const double x = plan_.area.CategoryX(label.category);
            overhang.left =
                std::max(overhang.left, plan_.categories.ReachLeft(label) - (x - plan_.area.box.left));
            overhang.right =
                std::max(overhang.right, plan_.categories.ReachRight(label) - (plan_.area.box.right - x));
        }
        return {std::min(overhang.left, MostOverhang()), std::min(overhang.right, MostOverhang())};
    }
    void LeaveRoomForOverhang() {
        const Overhang overhang = OverhangOf();
        Grow(margins_.left, TitlesLeft() + overhang.left);
        Grow(margins_.right, TitlesRight() + overhang.right);
    }
    [[nodiscard]] double NeededLeft() const {
        return TitlesLeft() + std::max(LabelRoom(AxisId::Y, plan_.primary.LabelWidth()), OverhangOf().left);
    }

    void FitMaps() {
        PlotArea& area = plan_.area;
        area.primary = plan_.primary.Map(area.box.bottom, area.box.top);
        area.secondary = plan_.secondary.Map(area.box.bottom, area.box.top);
        area.across = plan_.across.Map(area.box.left, area.box.right);
    }

    const LayoutContext& context_;
    const PlotDemand& demand_;
    Box box_;
    Furniture furniture_;
    CategorySequence categories_;
    HeadRoom primaryRoom_;
    HeadRoom secondaryRoom_;
    bool named_ = false; // whether any category has a label
    using Units = std::array<QString, 3>;
    Units units_; // of the labels across, upright, and on the secondary axis, as the titles tell them
    bool titlesAreBroken_ = false;
    bool hopesForOverhang_ = true;
    Box margins_;
    AxesPlan plan_;
};

} // namespace

double AxesPlan::LabelGap(const Axis& axis) {
    return LabelGapShare * axis.Labels.Item(1).VtFont.Size;
}

double AxesPlan::TitleGap(const Axis& axis) {
    return TitleGapShare * axis.AxisTitle.VtFont.Size;
}

QString TitleWithUnit(const QString& title, const QString& unit) {
    return unit.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, unit);
}

AxesPlan PlanAxes(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                  const Box& box, Furniture furniture) {
    return AxesPlanner(context, demand, plotted, box, furniture).Run();
}

} // namespace QmChart6

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
/// Each pass fits the labels to the box that the pass before left. Margins only grow, so that it comes to
/// rest.
constexpr int MostPasses = 8;

class AxesPlanner {
public:
    AxesPlanner(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                const Box& box, Furniture furniture)
        : context_(context), demand_(demand), box_(box), furniture_(furniture),
          primaryRoom_(HeadRoomOf(context, plotted, false)),
          secondaryRoom_(HeadRoomOf(context, plotted, true)) {
        plan_.showX = Shown(AxisId::X);
        plan_.showY = Shown(AxisId::Y);
        plan_.showSecondary = Shown(AxisId::SecondaryY);
        const DataGrid& grid = context.chart.DataGrid;
        named_ = context.chart.Plot.DataSeriesInRow ? grid.HasColumnLabels() : grid.HasRowLabels();
    }

    AxesPlan Run() {
        BreakTitles();
        margins_ = {TitlesLeft(), Above(), TitlesRight(), TitlesBelow() + HalfLabel()};
        for (int pass = 0; pass < MostPasses; ++pass) {
            const Box before = margins_;
            FitBox();
            PlanUpright();
            BreakTitles();
            GrowSides();
            FitBox();
            PlanAcross();
            BreakTitles();
            GrowEnds();
            if (margins_ == before) break;
        }
        FitBox();
        PlanUpright();
        PlanAcross();
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
        const double along = across ? box_.Width() : box_.Height();
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

    void GrowSides() {
        Grow(margins_.top, Above());
        Grow(margins_.left, TitlesLeft() + LabelRoom(AxisId::Y, plan_.primary.LabelWidth()));
        Grow(margins_.right, TitlesRight() + LabelRoom(AxisId::SecondaryY, plan_.secondary.LabelWidth()));
    }
    void GrowEnds() {
        Grow(margins_.bottom, TitlesBelow() + std::max(HalfLabel(), LabelRoom(AxisId::X, AcrossDepth())));
        LeaveRoomForOverhang();
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
        const AxisDemand secondary =
            demand_.usesSecondary ? WithHeadRoom(demand_.secondary, secondaryRoom_, demand_.keepZero, length)
                                  : primary;
        plan_.secondary =
            PlanValueAxis(context_, AxisOf(AxisId::SecondaryY), {secondary, demand_.keepZero, length, false});
    }

    void PlanAcross() {
        if (demand_.pairsColumns) {
            plan_.across = PlanValueAxis(context_, AxisOf(AxisId::X),
                                         {demand_.across, false, plan_.area.box.Width(), true});
            return;
        }
        if (!plan_.showX || !named_) return;
        const Chart& chart = context_.chart;
        plan_.categories = PlanCategoryLabels(
            {chart.CategoryCount(), [&chart](int category) { return chart.CategoryName(category + 1); },
             plan_.area.slot, DeepestLabelShare * box_.Height()},
            AxisOf(AxisId::X).Labels.Item(1).VtFont, context_.measurer);
    }

    [[nodiscard]] double AcrossDepth() const {
        return demand_.pairsColumns ? plan_.across.line.Height() : plan_.categories.Depth();
    }

    /// Labels at the ends of the horizontal axis may reach beyond the plot, but not beyond the box.
    void LeaveRoomForOverhang() {
        double left = 0;
        double right = 0;
        if (demand_.pairsColumns && plan_.showX) {
            left = plan_.across.ticks.front().width / 2;
            right = plan_.across.ticks.back().width / 2;
        }
        for (const CategoryLabelPlan::Label& label : plan_.categories.labels) {
            const double x = plan_.area.CategoryX(label.category);
            left = std::max(left, plan_.categories.ReachLeft(label) - (x - plan_.area.box.left));
            right = std::max(right, plan_.categories.ReachRight(label) - (plan_.area.box.right - x));
        }
        const double most = WidestOverhangShare * box_.Width();
        Grow(margins_.left, TitlesLeft() + std::min(left, most));
        Grow(margins_.right, TitlesRight() + std::min(right, most));
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
    HeadRoom primaryRoom_;
    HeadRoom secondaryRoom_;
    bool named_ = false; // whether any category has a label
    using Units = std::array<QString, 3>;
    Units units_; // of the labels across, upright, and on the secondary axis, as the titles tell them
    bool titlesAreBroken_ = false;
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

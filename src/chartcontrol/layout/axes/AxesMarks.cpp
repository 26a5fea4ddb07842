#include "chartcontrol/layout/axes/AxesMarks.h"

#include <algorithm>

namespace QmChart6 {

namespace {

/// Grid lines between categories stand no closer than this, in points.
constexpr double ClosestGrid = 6;
/// Short lines at the labelled categories, where others have none.
constexpr double TickLength = 3;

Part AxisPart(AxisId id) {
    return {PartCode::Axis, static_cast<int>(id), 1};
}

bool HasGrid(const Axis& axis) {
    return axis.AxisGrid.MajorPen.Style != PenStyle::None;
}

void GridAt(const LayoutContext& context, AxisId id, const Box& box, double place) {
    const Stroke stroke = StrokeOf(context.chart.Plot.Axis(id).AxisGrid.MajorPen);
    if (id == AxisId::X)
        context.builder.AddLine(AxisPart(id), {place, box.top}, {place, box.bottom}, stroke);
    else
        context.builder.AddLine(AxisPart(id), {box.left, place}, {box.right, place}, stroke);
}

void UprightGrid(const LayoutContext& context, AxisId id, const ValueAxisPlan& plan, const AxisMap& map,
                 const Box& box) {
    for (const ValueAxisPlan::Tick& tick : plan.ticks) GridAt(context, id, box, map.At(tick.value));
}

/// Between all categories; where they are too close for that, before those that have a label.
void CategoryGrid(const LayoutContext& context, const AxesPlan& plan) {
    const PlotArea& area = plan.area;
    const double edge = area.firstX > area.box.left ? area.box.left : area.firstX;
    if (area.slot >= ClosestGrid) {
        const int lines = static_cast<int>((area.box.right + 1e-6 - edge) / area.slot);
        for (int line = 0; line <= lines; ++line)
            GridAt(context, AxisId::X, area.box, edge + line * area.slot);
        return;
    }
    double before = -ClosestGrid;
    for (const CategoryLabelPlan::Label& label : plan.categories.labels) {
        const double place = edge + label.category * area.slot;
        if (place - before >= ClosestGrid) GridAt(context, AxisId::X, area.box, place);
        before = place;
    }
}

void AxisLine(const LayoutContext& context, AxisId id, Point from, Point to) {
    const Pen& pen = context.chart.Plot.Axis(id).Pen;
    if (pen.Style != PenStyle::None) context.builder.AddLine(AxisPart(id), from, to, StrokeOf(pen));
}

void UprightLabels(const LayoutContext& context, AxisId id, const ValueAxisPlan& plan, const AxisMap& map,
                   const Box& box) {
    const Axis& axis = context.chart.Plot.Axis(id);
    const bool atLeft = id == AxisId::Y;
    const double x = atLeft ? box.left - AxesPlan::LabelGap(axis) : box.right + AxesPlan::LabelGap(axis);
    int index = 0;
    for (const ValueAxisPlan::Tick& tick : plan.ticks) {
        const double y = map.At(tick.value) + (plan.line.ascent - plan.line.descent) / 2;
        context.builder.AddText({PartCode::AxisLabel, static_cast<int>(id), ++index},
                                {tick.text,
                                 axis.Labels.Item(1).VtFont,
                                 {x, y},
                                 atLeft ? TextAnchor::End : TextAnchor::Start,
                                 0,
                                 tick.width,
                                 plan.line.ascent,
                                 plan.line.descent});
    }
}

void AcrossLabels(const LayoutContext& context, const AxesPlan& plan) {
    const Axis& axis = context.chart.Plot.Axis(AxisId::X);
    const double y = plan.area.box.bottom + plan.gapBelow + plan.across.line.ascent;
    int index = 0;
    for (const ValueAxisPlan::Tick& tick : plan.across.ticks) {
        context.builder.AddText({PartCode::AxisLabel, static_cast<int>(AxisId::X), ++index},
                                {tick.text,
                                 axis.Labels.Item(1).VtFont,
                                 {plan.area.across.At(tick.value), y},
                                 TextAnchor::Middle,
                                 0,
                                 tick.width,
                                 plan.across.line.ascent,
                                 plan.across.line.descent});
    }
}

void CategoryAxis(const LayoutContext& context, const AxesPlan& plan) {
    const Box& box = plan.area.box;
    if (plan.categories.thinned)
        for (const CategoryLabelPlan::Label& label : plan.categories.labels) {
            const double x = plan.area.CategoryX(label.category);
            AxisLine(context, AxisId::X, {x, box.bottom}, {x, box.bottom + TickLength});
        }
    PlaceCategoryLabels(
        context.builder, plan.categories, [&plan](int category) { return plan.area.CategoryX(category); },
        box.bottom + plan.gapBelow);
}

/// The middle of something of that length that would best stand at `wished`, moved so that it stays between.
double MiddleWithin(double wished, double length, double least, double greatest) {
    return std::clamp(wished, least + length / 2, std::max(least + length / 2, greatest - length / 2));
}

void Titles(const LayoutContext& context, const AxesPlan& plan, const Box& box) {
    const Box& area = plan.area.box;
    const auto part = [](AxisId id) { return Part{PartCode::AxisTitle, static_cast<int>(id), 1}; };
    const double x = MiddleWithin(area.Center().x, plan.xTitle.Extent().width, box.left, box.right);
    PlaceText(context.builder, part(AxisId::X), plan.xTitle, {x, area.bottom, x, box.bottom},
              HorizontalAlignment::Center, VerticalAlignment::Bottom);
    const double bottom = box.bottom - plan.xTitle.Extent().height;
    const double y = MiddleWithin(area.Center().y, plan.yTitle.Extent().height, box.top, bottom);
    PlaceText(context.builder, part(AxisId::Y), plan.yTitle, {box.left, y, area.left, y},
              HorizontalAlignment::Left, VerticalAlignment::Center);
    const double second = MiddleWithin(area.Center().y, plan.secondaryTitle.Extent().height, box.top, bottom);
    PlaceText(context.builder, part(AxisId::SecondaryY), plan.secondaryTitle,
              {area.right, second, box.right, second}, HorizontalAlignment::Right, VerticalAlignment::Center);
    // Units stand above the labels, and reach over the plot where they are wider.
    const double left = area.left - AxesPlan::LabelGap(context.chart.Plot.Axis(AxisId::Y));
    PlaceText(context.builder, part(AxisId::Y), plan.yUnit,
              {std::max(box.left, left - plan.primary.LabelWidth()), box.top, area.right, area.top},
              HorizontalAlignment::Left, VerticalAlignment::Top);
    if (plan.yUnit.Length() + plan.secondaryUnit.Length() < area.Width())
        PlaceText(context.builder, part(AxisId::SecondaryY), plan.secondaryUnit,
                  {area.left, box.top, box.right, area.top}, HorizontalAlignment::Right,
                  VerticalAlignment::Top);
}

} // namespace

void LayOutGrid(const LayoutContext& context, const PlotDemand& demand, const AxesPlan& plan) {
    const Plot& plot = context.chart.Plot;
    const Box& box = plan.area.box;
    if (HasGrid(plot.Axis(AxisId::X))) {
        if (demand.pairsColumns)
            for (const ValueAxisPlan::Tick& tick : plan.across.ticks)
                GridAt(context, AxisId::X, box, plan.area.across.At(tick.value));
        else
            CategoryGrid(context, plan);
    }
    // Where the second axis mirrors the first, its lines would cover the first one's.
    const bool mirrors = !demand.usesSecondary && HasGrid(plot.Axis(AxisId::Y));
    if (HasGrid(plot.Axis(AxisId::SecondaryY)) && !mirrors)
        UprightGrid(context, AxisId::SecondaryY, plan.secondary, plan.area.secondary, box);
    if (HasGrid(plot.Axis(AxisId::Y))) UprightGrid(context, AxisId::Y, plan.primary, plan.area.primary, box);
}

void LayOutAxes(const LayoutContext& context, const PlotDemand& demand, const AxesPlan& plan,
                const Box& box) {
    const Box& area = plan.area.box;
    if (plan.showY) {
        AxisLine(context, AxisId::Y, {area.left, area.top}, {area.left, area.bottom});
        UprightLabels(context, AxisId::Y, plan.primary, plan.area.primary, area);
    }
    if (plan.showSecondary) {
        AxisLine(context, AxisId::SecondaryY, {area.right, area.top}, {area.right, area.bottom});
        UprightLabels(context, AxisId::SecondaryY, plan.secondary, plan.area.secondary, area);
    }
    if (plan.showX) {
        const double y = demand.keepZero ? plan.area.primary.Base() : area.bottom;
        AxisLine(context, AxisId::X, {area.left, y}, {area.right, y});
        if (demand.pairsColumns)
            AcrossLabels(context, plan);
        else
            CategoryAxis(context, plan);
    }
    Titles(context, plan, box);
}

} // namespace QmChart6

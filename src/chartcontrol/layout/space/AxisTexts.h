#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/space/AxisTextRoom.h"
#include "chartcontrol/layout/space/SpacePlan.h"

#include <array>
#include <vector>

namespace QmChart6 {

/// What the labels and titles of the axes of a 3D plot are laid out with.
struct AxisTexts {
    AxisTexts(const LayoutContext& with, const SpacePlan& of, const Box& within,
              const std::optional<Box>& bounds)
        : context(with), plan(of), box(within), room(of, bounds) {}

    const LayoutContext& context;
    const SpacePlan& plan;
    /// The room of the whole plot.
    Box box;
    AxisTextRoom room;
    /// By axis, what each of its labels takes.
    std::array<std::vector<Box>, 4> labels;
    /// Where the edge is that has the names of the rows.
    double rowEdgeX = 0;

    [[nodiscard]] const Axis& AxisOf(AxisId id) const { return context.chart.Plot.Axis(id); }
    [[nodiscard]] bool Shown(AxisId id) const {
        return plan.furniture != Furniture::None && !AxisOf(id).AxisScale.Hide;
    }
    [[nodiscard]] double Gap(AxisId id) const { return AxesPlan::LabelGap(AxisOf(id)); }
    [[nodiscard]] double LineHeight(AxisId id) const {
        return context.measurer.Measure(QStringLiteral("x"), AxisOf(id).Labels.Item(1).VtFont).Height();
    }
    [[nodiscard]] const std::vector<Box>& LabelsOf(AxisId id) const {
        return labels[static_cast<std::size_t>(id)];
    }
    /// The direction away from an edge on the page and from the middle of the space.
    [[nodiscard]] Point Outward(Point from, Point to) const;

    /// A line of a label's text with its middle height at a point.
    [[nodiscard]] TextLine LineAt(AxisId id, const QString& text, Point at, TextAnchor anchor) const;
    void Place(AxisId id, int index, TextLine line);
};

/// The titles of the axes and the units of their labels, beyond the labels.
void LayOutSpaceTitles(AxisTexts& texts);

} // namespace QmChart6

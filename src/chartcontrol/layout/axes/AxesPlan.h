#pragma once

#include "chartcontrol/layout/axes/CategoryLabels.h"
#include "chartcontrol/layout/axes/PlotArea.h"
#include "chartcontrol/layout/axes/ValueAxis.h"
#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/data/PlottedValues.h"

#include <vector>

namespace QmChart6 {

/// What the series of a plot with axes ask of its axes.
struct PlotDemand {
    /// The axis across carries numbers, not categories.
    bool pairsColumns = false;
    /// Points stand on the ends of the axis, as areas do that have it to themselves.
    bool onEnds = false;
    bool keepZero = false;
    bool usesSecondary = false;
    /// Bars share the slots of the categories.
    bool hasBars = false;
    AxisDemand across;
    AxisDemand primary;
    AxisDemand secondary;
    /// The series that are drawn.
    std::vector<int> series;
    /// How many values are not above zero, on a logarithmic axis.
    int withoutPlace = 0;

    [[nodiscard]] bool HasValues() const { return !primary.range.IsEmpty() || !secondary.range.IsEmpty(); }
};

PlotDemand DemandOf(const Chart& chart, const PlottedValues& plotted);

/// Tells in the scene's warnings what of the values cannot be shown.
void WarnOf(const LayoutContext& context, const PlotDemand& demand);

/// How much of the axes' furniture is drawn; a small chart does without some.
enum class Furniture { All, NoTitles, None };

/// Titles, labels and the plot's box, fitted to each other within a box.
struct AxesPlan {
    PlotArea area;
    ValueAxisPlan primary;
    ValueAxisPlan secondary;
    ValueAxisPlan across;
    CategoryLabelPlan categories;
    TextBlock xTitle;
    TextBlock yTitle;
    TextBlock secondaryTitle;
    /// What the labels of an upright axis are told in, above them, where no title tells it.
    TextBlock yUnit;
    TextBlock secondaryUnit;
    /// From the plot's lower edge to the labels: more than from other edges where those of an upright axis
    /// reach down there.
    double gapBelow = 0;
    bool showX = false;
    bool showY = false;
    bool showSecondary = false;

    /// From the plot's edge to the labels, and from the labels to the title.
    static double LabelGap(const Axis& axis);
    static double TitleGap(const Axis& axis);
};

/// A title with the unit of its axis' labels: "Sales (million)".
QString TitleWithUnit(const QString& title, const QString& unit);

AxesPlan PlanAxes(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                  const Box& box, Furniture furniture);

} // namespace QmChart6

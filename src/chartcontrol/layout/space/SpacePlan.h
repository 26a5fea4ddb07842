#pragma once

#include "chartcontrol/layout/axes/AxesPlan.h"
#include "chartcontrol/layout/space/SpaceView.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace QmChart6 {

/// The finished geometry of a 3D plot: where rows and columns stand in space, and how space comes onto the
/// page.
struct SpacePlan {
    SpacePoint size;
    std::optional<SpaceView> view; // once its size is known
    /// Page points to a unit of space, and where the page's origin of the flat picture is.
    double scale = 1;
    Point origin;

    /// The middle of each category along x and of each row along z, and the room of one.
    std::vector<double> columns;
    double slot = 1;
    /// Which categories, from 0, the columns stand for: fewer than there are where they are thinner than a
    /// pixel.
    std::vector<int> categories;
    std::vector<double> rows;
    double rowDepth = 1;
    /// The row that each series stands in, by its number - 1; -1 for those not drawn.
    std::vector<int> rowOfSeries;

    ValueAxisPlan primary;
    ValueAxisPlan secondary;
    AxisMap primaryMap; // values to y in space
    AxisMap secondaryMap;
    /// Each row is one series', and there are several.
    bool hasNamedRows = false;
    Furniture furniture = Furniture::All;

    [[nodiscard]] const SpaceView& View() const { return *view; }
    [[nodiscard]] Point Page(SpacePoint point) const {
        const Point flat = View().Flat(point);
        return {origin.x + flat.x * scale, origin.y + flat.y * scale};
    }
    /// What the whole space takes on the page.
    [[nodiscard]] Box Bounds() const;
    /// The edges of the floor that carry the labels of the categories and of the rows: those lowest on the
    /// page.
    [[nodiscard]] double CategoryEdgeZ() const;
    [[nodiscard]] double RowEdgeX() const;
    /// The corner of the floor whose upright edge is outermost on the page, at the left or at the right:
    /// there the values are labelled.
    [[nodiscard]] SpacePoint UprightEdge(bool left) const;
    /// How far the categories' edge falls to the right on the page, as a part of its width; 0 for a level
    /// one.
    [[nodiscard]] double CategorySlope() const;

    /// A height, cut to the space: a fixed axis may leave values outside.
    [[nodiscard]] double Within(double y) const { return std::clamp(y, 0.0, size.y); }
    [[nodiscard]] bool IsWithin(double y) const {
        constexpr double slack = 1e-6;
        return y >= -slack && y <= size.y + slack;
    }
    [[nodiscard]] const AxisMap& MapOf(const Series& series) const {
        return series.SecondaryAxis ? secondaryMap : primaryMap;
    }
};

/// From so much slope on, labels stand beside the edge of the categories, not below it.
inline constexpr double LeastSlope = 0.08;

/// The space as large as it can be within a box, without room for the texts of its axes.
SpacePlan PlanSpace(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                    const Box& box, Furniture furniture);

} // namespace QmChart6

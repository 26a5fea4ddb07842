#pragma once

#include "chartcontrol/layout/flat/BarCluster.h"

namespace QmChart6 {

/// Where a bar stands and where it ends, and whether it would be too small to be seen and is drawn larger.
struct BarEnds {
    double base = 0;
    double end = 0;
    bool isHairline = false;
};

/// A plot with axes, finished: its geometry, the values as drawn, and how bars share a slot. All marks are
/// placed by it, and it tells afterwards where they are.
struct PlottedArea {
    PlotArea area;
    PlottedValues plotted;
    BarCluster bars;

    [[nodiscard]] const AxisMap& MapOf(int series) const { return area.MapOf(plotted.IsSecondary(series)); }
    /// The y of a value of a series, and the y where its bars and areas stand.
    [[nodiscard]] double Y(int series, double value) const { return MapOf(series).At(value); }
    [[nodiscard]] double BaseY(int series) const { return MapOf(series).Base(); }
    /// Where the mark of a category (from 0) starts: on what it is piled on, or on the axis.
    [[nodiscard]] double BaseY(int series, int category) const {
        const Values bases = plotted.Base(series);
        return bases.first == nullptr ? BaseY(series) : MapOf(series).StandAt(bases[category]);
    }
    /// Bars are thinner than a device pixel.
    [[nodiscard]] bool HasDenseBars() const { return bars.barWidth * area.pixelsPerPoint < 1; }
    /// The bar of a category (from 0) that has a place: at least a hairline on its own side of the axis, if
    /// the value is not zero.
    [[nodiscard]] Box BarOf(int series, int category) const;
    [[nodiscard]] BarEnds EndsOf(int series, int category) const;
};

} // namespace QmChart6

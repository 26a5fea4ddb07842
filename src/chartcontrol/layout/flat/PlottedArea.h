#pragma once

#include "chartcontrol/layout/flat/BarCluster.h"

namespace QmChart6 {

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
    /// Categories are thinner than a device pixel.
    [[nodiscard]] bool IsDense() const { return area.slot * area.pixelsPerPoint < 1; }
    /// The bar of a category (from 0) that has a value.
    [[nodiscard]] Box BarOf(int series, int category) const;
};

} // namespace QmChart6

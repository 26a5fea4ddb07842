#pragma once

#include "chartcontrol/layout/axes/PlotArea.h"
#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/data/PlottedValues.h"

namespace QmChart6 {

/// What the marks of a plot with axes work with: the layout's context, the plot's geometry and the values as
/// drawn.
struct PlotContext : LayoutContext {
    const PlotArea& area;
    const PlottedValues& plotted;

    /// The y of a value of a series, and the y where its bars and areas stand.
    [[nodiscard]] double Y(int series, double value) const { return MapOf(series).At(value); }
    [[nodiscard]] double BaseY(int series) const { return PlotArea::BaseOf(MapOf(series)); }
    [[nodiscard]] const LinearMap& MapOf(int series) const {
        return area.MapOf(chart.Plot.SeriesCollection(series));
    }
};

} // namespace QmChart6

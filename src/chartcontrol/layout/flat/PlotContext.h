#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/flat/PlottedArea.h"

namespace QmChart6 {

/// What the marks of a plot with axes work with: the layout's context, and the finished plot.
struct PlotContext : LayoutContext {
    PlotContext(const LayoutContext& context, const PlottedArea& finished)
        : LayoutContext(context), plot(finished), area(finished.area), plotted(finished.plotted) {}

    const PlottedArea& plot;
    const PlotArea& area;
    const PlottedValues& plotted;
};

} // namespace QmChart6

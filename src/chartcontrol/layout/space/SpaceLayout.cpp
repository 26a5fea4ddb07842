#include "chartcontrol/layout/space/SpaceLayout.h"

#include "chartcontrol/layout/space/SpaceAxes.h"
#include "chartcontrol/layout/space/SpaceFit.h"
#include "chartcontrol/layout/space/SpaceLabels.h"
#include "chartcontrol/layout/space/SpaceMarks.h"
#include "chartcontrol/layout/space/SpaceWalls.h"

namespace QmChart6 {

SpacePlaces LayOutSpace(const LayoutContext& context, const Box& box) {
    const PlottedValues plotted(context.chart);
    const PlotDemand demand = DemandOf(context.chart, plotted);
    WarnOf(context, demand);
    const SpacePlan plan = FitSpace(context, demand, plotted, box);
    LayOutWalls(context, demand, plan);
    SpacePlaces places = LayOutSpaceMarks(context, plan, plotted);
    LayOutSpaceAxes(context, plan, box);
    LayOutSpaceLabels(context, plan, plotted, box);
    return places;
}

} // namespace QmChart6

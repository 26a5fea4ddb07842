#include "chartcontrol/layout/space/SpaceFit.h"

#include "chartcontrol/layout/space/SpaceAxes.h"
#include "chartcontrol/layout/space/SpaceLabels.h"

#include <algorithm>

namespace QmChart6 {

namespace {

/// A plot smaller than this on the page does without titles, and then without labels. Points.
constexpr double SmallestWidth = 60;
constexpr double SmallestHeight = 45;
/// Rounds in which labels and space are fitted to each other.
constexpr int MostRounds = 5;
/// Margins grow by this more than they lack, so that they come to rest. Points.
constexpr double Reserve = 0.5;

struct Margins {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    [[nodiscard]] Box Inside(const Box& box) const {
        const Box room{box.left + left, box.top + top, box.right - right, box.bottom - bottom};
        return {room.left, room.top, std::max(room.right, room.left + 1),
                std::max(room.bottom, room.top + 1)};
    }
    /// Takes what is lacking; whether anything was.
    bool Grow(const Box& space, const Box& wished) {
        bool grown = false;
        const auto grow = [&](double& margin, double needed) {
            if (!(needed > margin)) return;
            margin = needed + Reserve;
            grown = true;
        };
        grow(left, space.left - wished.left);
        grow(top, space.top - wished.top);
        grow(right, wished.right - space.right);
        grow(bottom, wished.bottom - space.bottom);
        return grown;
    }
};

/// Each round leaves room for the texts that the round before would have had.
SpacePlan PlanWith(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                   const Box& box, Furniture furniture) {
    Margins margins{0, HeadRoomOfSpaceLabels(context), 0, 0};
    SpacePlan plan = PlanSpace(context, demand, plotted, margins.Inside(box), furniture);
    for (int round = 0; round < MostRounds; ++round) {
        if (!margins.Grow(plan.Bounds(), WishedByAxes(context, plan, box))) break;
        plan = PlanSpace(context, demand, plotted, margins.Inside(box), furniture);
    }
    return plan;
}

} // namespace

SpacePlan FitSpace(const LayoutContext& context, const PlotDemand& demand, const PlottedValues& plotted,
                   const Box& box) {
    for (const Furniture furniture : {Furniture::All, Furniture::NoTitles}) {
        SpacePlan plan = PlanWith(context, demand, plotted, box, furniture);
        const Box space = plan.Bounds();
        if (space.Width() >= SmallestWidth && space.Height() >= SmallestHeight) return plan;
    }
    context.builder.Warn(QStringLiteral("the chart is too small for its axes' labels"));
    return PlanSpace(context, demand, plotted, box, Furniture::None);
}

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/scale/LinearMap.h"
#include "chartcontrol/scale/Ticks.h"
#include "chartcontrol/scale/ValueRange.h"

#include <vector>

namespace QmChart6 {

/// The ticks of a value axis and the labels at them, measured.
struct ValueAxisPlan {
    struct Label {
        QString text;
        double width = 0;
    };

    Ticks ticks;
    std::vector<Label> labels;
    TextExtent line;

    [[nodiscard]] double LabelWidth() const;
    /// Maps the axis' values onto a stretch of the picture.
    [[nodiscard]] LinearMap Map(double from, double to) const {
        return {ticks.first, ticks.Last(), from, to};
    }
};

/// What an axis is planned for. An empty range is planned as 0 to 1.
struct ValueAxisWish {
    ValueRange range;
    /// Zero belongs to the axis, as bars and areas stand on it.
    bool keepZero = false;
    /// Points along the axis.
    double length = 0;
    /// Labels lie side by side and must not meet, as under an axis that runs across.
    bool across = false;
};

ValueAxisPlan PlanValueAxis(const LayoutContext& context, const Axis& axis, const ValueAxisWish& wish);

} // namespace QmChart6

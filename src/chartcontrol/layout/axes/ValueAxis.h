#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/scale/AxisMap.h"
#include "chartcontrol/scale/ValueRange.h"

#include <vector>

namespace QmChart6 {

/// The ticks of a value axis and the labels at them, measured.
struct ValueAxisPlan {
    struct Tick {
        double value = 0;
        QString text;
        double width = 0;
    };

    /// From the least to the greatest, at least two. They lie within the axis, mostly on both of its ends.
    std::vector<Tick> ticks;
    double low = 0;
    double high = 1;
    bool logarithmic = false;
    /// What the labels are told in, such as "million"; "" where they are whole values.
    QString unit;
    TextExtent line;

    [[nodiscard]] double LabelWidth() const;
    /// Of every stride-th tick (from 1) the first that has a label, so that multiples of the longer step have
    /// them, zero among these.
    [[nodiscard]] std::size_t FirstOf(std::size_t stride) const;
    /// Whether every stride-th tick stands at a round step, or none would.
    [[nodiscard]] bool IsRound(std::size_t stride) const;
    /// Maps the axis' values onto a stretch of the picture.
    [[nodiscard]] AxisMap Map(double from, double to) const { return {low, high, from, to, logarithmic}; }
};

/// What the series that stand on an axis ask of it.
struct AxisDemand {
    ValueRange range;
    /// The values are whole numbers, and so close together that steps between them might be chosen.
    bool whole = false;
    bool logarithmic = false;
};

/// What an axis is planned for. An empty range is planned as 0 to 1, or as 1 to 10 on a logarithmic axis.
struct ValueAxisWish {
    AxisDemand demand;
    /// Zero belongs to the axis, as bars and areas stand on it.
    bool keepZero = false;
    /// Points along the axis.
    double length = 0;
    /// Labels lie side by side and must not meet, as under an axis that runs across.
    bool across = false;
};

ValueAxisPlan PlanValueAxis(const LayoutContext& context, const Axis& axis, const ValueAxisWish& wish);

} // namespace QmChart6

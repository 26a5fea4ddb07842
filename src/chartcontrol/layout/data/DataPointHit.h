#pragma once

#include "chartcontrol/model/Chart.h"

namespace QmChart6 {

/// A data point: the number of its series and of its category, both from 1.
struct DataPointHit {
    int series = 0;
    int category = 0;

    friend bool operator==(const DataPointHit&, const DataPointHit&) = default;
};

/// Whether the data point has a value, in an XY chart both of them. False outside the chart's data.
bool HasValue(const Chart& chart, DataPointHit point);

} // namespace QmChart6

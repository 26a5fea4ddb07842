#pragma once

#include "chartcontrol/model/Chart.h"
#include "chartcontrol/scene/Scene.h"

#include <optional>

namespace QmChart6 {

/// A data point: the number of its series and of its category, both from 1.
struct DataPointHit {
    int series = 0;
    int category = 0;

    friend bool operator==(const DataPointHit&, const DataPointHit&) = default;
};

/// The data point that a shape of the part shows at a place in the chart's scene. A shape that stands for
/// many points (a line, an area, dense bars) tells the nearest category by x that has a value, in an XY chart
/// the nearest point. Nothing for parts that are no series' mark or label, and where the series has no value.
std::optional<DataPointHit> PointAt(const Chart& chart, const Scene& scene, Part part, Point place);

/// Where a data point is drawn: the middle of its mark. Nothing where it has no value or no mark.
std::optional<Point> PlaceOfPoint(const Chart& chart, const Scene& scene, DataPointHit point);

/// Whether the data point has a value, in an XY chart both of them. False outside the chart's data.
bool HasValue(const Chart& chart, DataPointHit point);

} // namespace QmChart6

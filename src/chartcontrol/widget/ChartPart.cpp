#include "chartcontrol/widget/ChartPart.h"

#include "chartcontrol/scene/HitTest.h"
#include "qmchart6/RuntimeError.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <variant>

namespace QmChart6 {

namespace {

constexpr int LastPart = static_cast<int>(PartCode::AxisTitle);

bool IsOfAxis(PartCode code) {
    return code == PartCode::Axis || code == PartCode::AxisLabel || code == PartCode::AxisTitle;
}

/// Whether index1 of such a part is a series, and index2 a data point, or below 1 all of them.
bool IsOfData(PartCode code) {
    return code == PartCode::Series || code == PartCode::SeriesLabel || code == PartCode::DataPoint ||
           code == PartCode::PointLabel;
}

ChartPart AxisPart(PartCode code, int axis) {
    return {static_cast<int>(code), axis, 1, code == PartCode::AxisLabel ? 1 : 0, 0};
}

/// Walls make a chart in space, where a grid line goes along two of them. On a page an axis' grid lines cross
/// the plot, and its own line runs along it.
bool IsGridLine(const Scene& scene, const Shape& shape) {
    const auto* line = std::get_if<Polyline>(&shape.geometry);
    if (line == nullptr || shape.part.code != PartCode::Axis) return false;
    const std::span<const Point> points = scene.PointsOf(line->points);
    const bool inSpace = std::any_of(scene.shapes.begin(), scene.shapes.end(), [](const Shape& other) {
        return other.part.code == PartCode::Plot && std::holds_alternative<Polygon>(other.geometry);
    });
    if (inSpace || points.size() != 2) return points.size() > 2;
    const bool upright = std::abs(points[1].y - points[0].y) > std::abs(points[1].x - points[0].x);
    return upright == (shape.part.index1 == static_cast<int>(AxisId::X));
}

} // namespace

bool ChartPart::IsGridLine() const {
    return part == static_cast<int>(PartCode::Plot) && index1 == 1;
}

bool ChartPart::IsOfSeries() const {
    return part == static_cast<int>(PartCode::Series) || part == static_cast<int>(PartCode::DataPoint);
}

ChartPart PartAt(const LaidOutChart& laidOut, Point place) {
    const std::optional<std::size_t> hit = Hit(laidOut.scene, place);
    const Part part = hit ? laidOut.scene.shapes[*hit].part : Part{};
    if (hit && IsGridLine(laidOut.scene, laidOut.scene.shapes[*hit]))
        return {static_cast<int>(PartCode::Plot), 1};
    const int code = static_cast<int>(part.code);
    switch (part.code) {
    case PartCode::Chart:
    case PartCode::Title:
    case PartCode::Footnote:
    case PartCode::Legend:
    case PartCode::Plot:
        return {code};
    case PartCode::Series:
    case PartCode::SeriesLabel:
    case PartCode::DataPoint:
    case PartCode::PointLabel:
    case PartCode::Statistics: {
        const std::optional<DataPointHit> point = laidOut.places.Of(part, place);
        const PartCode shown = part.code == PartCode::Statistics ? PartCode::Series : part.code;
        return {static_cast<int>(shown), part.index1, point ? point->category : part.index2};
    }
    case PartCode::Axis:
    case PartCode::AxisLabel:
    case PartCode::AxisTitle:
        return AxisPart(part.code, part.index1);
    }
    return {code};
}

Part ShapesOf(const ChartPart& part) {
    const auto code = static_cast<PartCode>(part.part);
    switch (code) {
    case PartCode::Series:
    case PartCode::DataPoint:
        return {PartCode::Series, part.index1, AnyIndex};
    case PartCode::PointLabel:
        return {code, part.index1, part.index2 > 0 ? part.index2 : AnyIndex};
    case PartCode::SeriesLabel:
    case PartCode::Axis:
    case PartCode::AxisLabel:
    case PartCode::AxisTitle:
        return {code, part.index1, AnyIndex};
    case PartCode::Chart:
    case PartCode::Title:
    case PartCode::Footnote:
    case PartCode::Legend:
    case PartCode::Plot:
    case PartCode::Statistics:
        break;
    }
    return {code, AnyIndex, AnyIndex};
}

bool HasPart(const Chart& chart, const ChartPart& part) {
    if (part.IsNone()) return true;
    if (part.part < 0 || part.part > LastPart) return false;
    const auto code = static_cast<PartCode>(part.part);
    if (IsOfAxis(code)) return part.index1 >= 0 && part.index1 <= static_cast<int>(AxisId::Z);
    if (!IsOfData(code)) return true;
    return part.index1 >= 1 && part.index1 <= chart.Plot.SeriesCollection.Count() &&
           part.index2 <= chart.CategoryCount();
}

void RequirePart(const Chart& chart, const ChartPart& part) {
    if (HasPart(chart, part)) return;
    if (part.part < 0 || part.part > LastPart)
        throw RuntimeError(
            ErrorNumber::InvalidPropertyValue,
            QStringLiteral("a part code is from 0 to %1, not %2").arg(LastPart).arg(part.part));
    // The chart itself tells what it lacks.
    if (IsOfAxis(static_cast<PartCode>(part.part))) {
        static_cast<void>(chart.Plot.Axis(part.index1));
        return;
    }
    static_cast<void>(chart.Plot.SeriesCollection(part.index1));
    static_cast<void>(chart.CategoryName(part.index2));
}

} // namespace QmChart6

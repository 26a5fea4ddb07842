#include "chartcontrol/layout/text/LabelLines.h"

#include <algorithm>

namespace QmChart6 {

namespace {

constexpr double Width = 0.6;
/// The level end of a bent line.
constexpr double LevelEnd = 6;
constexpr double LineGap = 1.5;

} // namespace

std::vector<Point> LabelLine(LabelLineStyle style, Point from, const Box& label) {
    if (style == LabelLineStyle::None) return {};
    const bool beside = from.x < label.left || from.x > label.right;
    if (!beside) return {from, {from.x, from.y < label.top ? label.top - LineGap : label.bottom + LineGap}};
    const bool toLeft = label.right < from.x;
    const Point end{toLeft ? label.right + LineGap : label.left - LineGap, label.Center().y};
    if (style == LabelLineStyle::Straight) return {from, end};
    const double elbow = toLeft ? std::min(end.x + LevelEnd, from.x) : std::max(end.x - LevelEnd, from.x);
    return {from, {elbow, end.y}, end};
}

void AddLabelLine(SceneBuilder& builder, Part part, std::span<const Point> way, Colour colour) {
    for (const Point& point : way) builder.AddPoint(point);
    builder.AddPolyline(part, {PenStyle::Solid, Width, colour});
}

} // namespace QmChart6

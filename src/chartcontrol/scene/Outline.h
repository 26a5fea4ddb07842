#pragma once

#include "chartcontrol/scene/Scene.h"

#include <span>
#include <vector>

namespace QmChart6 {

/// Whether a closed polygon holds the point, by the even-odd rule.
bool InsidePolygon(std::span<const Point> polygon, Point point);

/// How far the point is from the line from `from` to `to`, ends included.
double DistanceToSegment(Point point, Point from, Point to);

/// The rim of a slice as a closed polygon that strays less than a hundredth of a point from the curve. A part
/// of the ellipse starts at its centre; the whole ellipse has no centre point.
std::vector<Point> SliceOutline(const Slice& slice);

/// A marker of that width round the origin as a closed polygon; a Circle is told by its round polygon too.
std::vector<Point> MarkerOutline(MarkerStyle style, double size);

/// The four corners, clockwise from the top left.
std::vector<Point> BoxOutline(const Box& box);

} // namespace QmChart6

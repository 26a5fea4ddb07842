#include "chartcontrol/scene/Outline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace QmChart6 {

namespace {

constexpr double Pi = std::numbers::pi;
constexpr double ArmOfCross = 0.15; // half the thickness of a plus' arms, in marker widths

Point OnEllipse(const Box& box, double radians) {
    const Point center = box.Center();
    return {center.x + box.Width() / 2 * std::cos(radians), center.y - box.Height() / 2 * std::sin(radians)};
}

/// Chords for a whole turn, so that a chord's middle stays within a hundredth of a point of the curve.
int ChordsOfTurn(double radius) {
    const double step = 2 * std::acos(1 - std::min(0.5, 0.01 / std::max(radius, 0.01)));
    return std::clamp(static_cast<int>(std::ceil(2 * Pi / step)), 8, 720);
}

std::vector<Point> PlusOutline(double half) {
    const double arm = half * 2 * ArmOfCross;
    return {{-arm, -half}, {arm, -half}, {arm, -arm}, {half, -arm}, {half, arm},   {arm, arm},
            {arm, half},   {-arm, half}, {-arm, arm}, {-half, arm}, {-half, -arm}, {-arm, -arm}};
}

std::vector<Point> CrossOutline(double half) {
    // A plus turned by an eighth, as wide as the box.
    const double reach = 1 / (1 + 2 * ArmOfCross); // of the tips' corners, so that they end at the box
    std::vector<Point> outline = PlusOutline(half * std::numbers::sqrt2 * reach);
    for (Point& point : outline) {
        point = {(point.x - point.y) / std::numbers::sqrt2, (point.x + point.y) / std::numbers::sqrt2};
    }
    return outline;
}

std::vector<Point> StarOutline(double half) {
    constexpr double InnerRadius = 0.45;
    std::vector<Point> outline;
    for (int corner = 0; corner < 10; ++corner) {
        const double radius = corner % 2 == 0 ? half : half * InnerRadius;
        const double radians = Pi / 2 + corner * Pi / 5;
        outline.push_back({radius * std::cos(radians), -radius * std::sin(radians)});
    }
    return outline;
}

} // namespace

bool InsidePolygon(std::span<const Point> polygon, Point point) {
    bool inside = false;
    for (std::size_t at = 0, before = polygon.size() - 1; at < polygon.size(); before = at++) {
        const Point a = polygon[at];
        const Point b = polygon[before];
        if ((a.y > point.y) == (b.y > point.y)) continue;
        if (point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) inside = !inside;
    }
    return inside;
}

double DistanceToSegment(Point point, Point from, Point to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double squared = dx * dx + dy * dy;
    const double along = squared > 0 ? ((point.x - from.x) * dx + (point.y - from.y) * dy) / squared : 0;
    const double nearest = std::clamp(along, 0.0, 1.0);
    return std::hypot(point.x - from.x - nearest * dx, point.y - from.y - nearest * dy);
}

std::vector<Point> SliceOutline(const Slice& slice) {
    const int turn = ChordsOfTurn(std::max(slice.box.Width(), slice.box.Height()) / 2);
    const bool whole = std::abs(slice.spanAngle) >= 360;
    const double span = whole ? 2 * Pi : slice.spanAngle * Pi / 180;
    const double start = slice.startAngle * Pi / 180;
    const int chords = std::max(1, static_cast<int>(std::ceil(std::abs(span) / (2 * Pi) * turn)));
    std::vector<Point> outline;
    outline.reserve(static_cast<std::size_t>(chords) + 2);
    if (!whole) outline.push_back(slice.box.Center());
    for (int chord = 0; chord <= chords - (whole ? 1 : 0); ++chord) {
        outline.push_back(OnEllipse(slice.box, start + span * chord / chords));
    }
    return outline;
}

std::vector<Point> MarkerOutline(MarkerStyle style, double size) {
    const double half = size / 2;
    switch (style) {
    case MarkerStyle::Automatic:
    case MarkerStyle::Circle:
        return SliceOutline({{-half, -half, half, half}, 0, 360});
    case MarkerStyle::Square: {
        const double side = half * 0.89; // as much ink as the circle
        return BoxOutline({-side, -side, side, side});
    }
    case MarkerStyle::Diamond:
        return {{0, -half}, {half, 0}, {0, half}, {-half, 0}};
    case MarkerStyle::TriangleUp:
        return {{0, -half}, {half, half * 0.8}, {-half, half * 0.8}};
    case MarkerStyle::TriangleDown:
        return {{0, half}, {-half, -half * 0.8}, {half, -half * 0.8}};
    case MarkerStyle::Plus:
        return PlusOutline(half);
    case MarkerStyle::Cross:
        return CrossOutline(half);
    case MarkerStyle::Star:
        return StarOutline(half);
    }
    return {};
}

std::vector<Point> BoxOutline(const Box& box) {
    return {{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}};
}

} // namespace QmChart6

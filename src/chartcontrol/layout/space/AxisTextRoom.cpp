#include "chartcontrol/layout/space/AxisTextRoom.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

/// What texts may reach beyond their bounds by rounding. Points.
constexpr double Slack = 0.01;

struct Reach {
    double least = std::numeric_limits<double>::infinity();
    double greatest = -std::numeric_limits<double>::infinity();
};

template<std::size_t Count>
Reach Along(const std::array<Point, Count>& corners, Point axis) {
    Reach reach;
    for (const Point corner : corners) {
        const double at = corner.x * axis.x + corner.y * axis.y;
        reach = {std::min(reach.least, at), std::max(reach.greatest, at)};
    }
    return reach;
}

} // namespace

AxisTextRoom::AxisTextRoom(const SpacePlan& plan, const std::optional<Box>& bounds) : bounds_(bounds) {
    const auto corner = [&](std::size_t number) {
        return plan.Page({(number & 1) != 0 ? plan.size.x : 0, (number & 2) != 0 ? plan.size.y : 0,
                          (number & 4) != 0 ? plan.size.z : 0});
    };
    for (std::size_t number = 0; number < corners_.size(); ++number) corners_[number] = corner(number);
    normals_ = {{1, 0}, {0, 1}};
    for (std::size_t from = 0; from < corners_.size(); ++from)
        for (const std::size_t direction : {1U, 2U, 4U}) {
            if ((from & direction) != 0) continue;
            const Point a = corners_[from];
            const Point b = corners_[from | direction];
            const double length = std::hypot(b.x - a.x, b.y - a.y);
            if (length > Slack) normals_.push_back({(b.y - a.y) / length, (a.x - b.x) / length});
        }
}

bool AxisTextRoom::IsInside(const Box& wanted) const {
    if (!bounds_) return true;
    const Box allowed = bounds_->Grown(Slack);
    return allowed.Contains({wanted.left, wanted.top}) && allowed.Contains({wanted.right, wanted.bottom});
}

bool AxisTextRoom::IsFree(const Box& wanted) const {
    return !MeetsSpace(wanted) &&
           std::ranges::none_of(taken_, [&](const Box& taken) { return Meet(taken, wanted); });
}

/// No line separates the box from the outline of the space.
bool AxisTextRoom::MeetsSpace(const Box& wanted) const {
    const std::array<Point, 4> box{Point{wanted.left, wanted.top},
                                   {wanted.right, wanted.top},
                                   {wanted.right, wanted.bottom},
                                   {wanted.left, wanted.bottom}};
    return std::ranges::all_of(normals_, [&](Point normal) {
        const Reach text = Along(box, normal);
        const Reach space = Along(corners_, normal);
        return text.least < space.greatest && space.least < text.greatest;
    });
}

std::optional<Box> AxisTextRoom::Push(const Box& wished, Point step, double reach, double air) const {
    const double length = std::hypot(step.x, step.y);
    const auto moved = [&](double times) {
        return Box{wished.left + step.x * times, wished.top + step.y * times, wished.right + step.x * times,
                   wished.bottom + step.y * times};
    };
    const int most = length > 0 ? static_cast<int>(reach / length) : 0;
    for (int times = 0; times <= most; ++times)
        if (const Box box = moved(times); IsFree(box.Grown(air)) && IsInside(box)) return box;
    return air > 0 ? Push(wished, step, reach) : std::nullopt;
}

} // namespace QmChart6

#include "chartcontrol/layout/space/SpaceView.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace QmChart6 {

namespace {

/// The viewer of a perspective stands this many diagonals away.
constexpr double EyeDiagonals = 2.2;
/// How much of the depth an oblique view shows.
constexpr double ObliqueDepth = 0.85;

double RadiansOf(double angle, AngleUnit unit) {
    switch (unit) {
    case AngleUnit::Degrees:
        return angle * std::numbers::pi / 180;
    case AngleUnit::Radians:
        return angle;
    case AngleUnit::Gradians:
        return angle * std::numbers::pi / 200;
    }
    return angle;
}

} // namespace

SpaceView::SpaceView(const Plot& plot, SpacePoint size) : projection_(plot.Projection), center_(size * 0.5) {
    constexpr double right = std::numbers::pi / 2;
    const double yaw = right - RadiansOf(plot.View3d.Rotation, plot.AngleUnit);
    const double pitch = std::clamp(RadiansOf(plot.View3d.Elevation, plot.AngleUnit), -right, right);
    if (projection_ == Projection::Oblique) {
        toEye_ = {ObliqueDepth * std::sin(yaw), ObliqueDepth * std::sin(pitch), -1};
        return;
    }
    toEye_ = {std::sin(yaw) * std::cos(pitch), std::sin(pitch), -std::cos(yaw) * std::cos(pitch)};
    right_ = {std::cos(yaw), 0, std::sin(yaw)};
    up_ = {-std::sin(yaw) * std::sin(pitch), std::cos(pitch), std::cos(yaw) * std::sin(pitch)};
    distance_ = EyeDiagonals * std::sqrt(Dot(size, size));
    eye_ = center_ + toEye_ * distance_;
}

Point SpaceView::Flat(SpacePoint point) const {
    if (projection_ == Projection::Oblique)
        return {point.x + point.z * toEye_.x, -(point.y + point.z * toEye_.y)};
    const SpacePoint from = point - center_;
    const double scale =
        projection_ == Projection::Perspective ? distance_ / (distance_ - Dot(from, toEye_)) : 1;
    return {Dot(from, right_) * scale, -Dot(from, up_) * scale};
}

bool SpaceView::Sees(SpacePoint normal, SpacePoint at) const {
    constexpr double edgeOn = 1e-9;
    return Dot(normal, projection_ == Projection::Perspective ? eye_ - at : toEye_) > edgeOn;
}

bool SpaceView::IsBeyond(double place, double eye, double direction) const {
    return projection_ == Projection::Perspective ? eye > place : direction > 0;
}

bool SpaceView::IsBeyondX(double x) const {
    return IsBeyond(x, eye_.x, toEye_.x);
}
bool SpaceView::IsBeyondY(double y) const {
    return IsBeyond(y, eye_.y, toEye_.y);
}
bool SpaceView::IsBeyondZ(double z) const {
    return IsBeyond(z, eye_.z, toEye_.z);
}

std::vector<int> SpaceView::FarToNearX(const std::vector<double>& places) const {
    return FarToNear(places, eye_.x, toEye_.x);
}
std::vector<int> SpaceView::FarToNearZ(const std::vector<double>& places) const {
    return FarToNear(places, eye_.z, toEye_.z);
}

std::vector<int> SpaceView::FarToNear(const std::vector<double>& places, double eye, double direction) const {
    std::vector<int> order(places.size());
    std::iota(order.begin(), order.end(), 0);
    const auto distance = [&](int index) {
        const double place = places[static_cast<std::size_t>(index)];
        return projection_ == Projection::Perspective ? std::abs(place - eye) : -place * direction;
    };
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return distance(a) > distance(b); });
    return order;
}

} // namespace QmChart6

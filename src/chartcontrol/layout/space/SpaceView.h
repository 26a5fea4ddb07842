#pragma once

#include "chartcontrol/model/Plot.h"
#include "chartcontrol/scene/Scene.h"

#include <vector>

namespace QmChart6 {

/// A place in a 3D chart: x along the categories, y upwards along the values, z from the front into the
/// depth.
struct SpacePoint {
    double x = 0;
    double y = 0;
    double z = 0;

    friend SpacePoint operator+(SpacePoint a, SpacePoint b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
    friend SpacePoint operator-(SpacePoint a, SpacePoint b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
    friend SpacePoint operator*(SpacePoint a, double by) { return {a.x * by, a.y * by, a.z * by}; }
    friend double Dot(SpacePoint a, SpacePoint b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
};

/// From where a 3D chart is seen and how it comes onto the page. A rotation of 90 degrees looks straight at
/// the front, smaller ones from its right; the elevation looks from above. Oblique keeps the front as it is
/// and draws the depth aslant; orthogonal and perspective turn the whole.
class SpaceView {
public:
    /// `size` is the chart's extent in space.
    SpaceView(const Plot& plot, SpacePoint size);

    /// Onto the page, before the fit: x to the right, y downwards, in units of space.
    [[nodiscard]] Point Flat(SpacePoint point) const;
    /// Whether a face with that outward normal, at that point, is seen from its outside.
    [[nodiscard]] bool Sees(SpacePoint normal, SpacePoint at) const;
    /// Whether the viewer is on the side of growing x, y or z of a place.
    [[nodiscard]] bool IsBeyondX(double x) const;
    [[nodiscard]] bool IsBeyondY(double y) const;
    [[nodiscard]] bool IsBeyondZ(double z) const;
    /// The indexes of the places along an axis, from the farthest to the nearest.
    [[nodiscard]] std::vector<int> FarToNearX(const std::vector<double>& places) const;
    [[nodiscard]] std::vector<int> FarToNearZ(const std::vector<double>& places) const;

private:
    [[nodiscard]] bool IsBeyond(double place, double eye, double direction) const;
    [[nodiscard]] std::vector<int> FarToNear(const std::vector<double>& places, double eye,
                                             double direction) const;

    QmChart6::Projection projection_;
    SpacePoint center_;
    /// Towards the viewer, to the page's right and up; of unit length but for the oblique view.
    SpacePoint toEye_;
    SpacePoint right_;
    SpacePoint up_;
    double distance_ = 0;
    SpacePoint eye_;
};

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/space/SpacePlan.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <array>
#include <span>

namespace QmChart6 {

/// Draws flat faces in space, shaded by how they are turned.
class SpaceFaces {
public:
    /// A face as it is on the page: the mean of its corners, and how large the box round it is.
    struct Drawn {
        Point middle;
        double room = 0;
    };

    SpaceFaces(SceneBuilder& builder, const SpacePlan& plan) : builder_(builder), plan_(plan) {}

    /// A face with its outward normal; nothing, and no room, when it is seen from behind.
    Drawn Add(Part part, std::span<const SpacePoint> corners, SpacePoint normal, const Brush& brush);
    /// A face that is seen from both sides.
    void AddSheet(Part part, std::span<const SpacePoint> corners, SpacePoint normal, const Brush& brush);
    /// The seen faces of an upright box. Gives the middle of the largest of them.
    Point AddBox(Part part, SpacePoint low, SpacePoint high, const Brush& brush);

private:
    Drawn Draw(Part part, std::span<const SpacePoint> corners, SpacePoint normal, const Brush& brush);

    SceneBuilder& builder_;
    const SpacePlan& plan_;
};

/// A colour as it looks on a face with that normal: the front as it is, the top lighter, sides and bottom
/// darker.
Colour Shaded(Colour colour, SpacePoint normal);

} // namespace QmChart6

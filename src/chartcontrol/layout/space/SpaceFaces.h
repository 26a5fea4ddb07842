#pragma once

#include "chartcontrol/layout/space/SpacePlan.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <array>
#include <span>

namespace QmChart6 {

/// Draws flat faces in space, shaded by how they are turned.
class SpaceFaces {
public:
    SpaceFaces(SceneBuilder& builder, const SpacePlan& plan) : builder_(builder), plan_(plan) {}

    /// A face with its outward normal; nothing when it is seen from behind.
    void Add(Part part, std::span<const SpacePoint> corners, SpacePoint normal, const Brush& brush);
    /// A face that is seen from both sides.
    void AddSheet(Part part, std::span<const SpacePoint> corners, SpacePoint normal, const Brush& brush);
    /// The seen faces of an upright box.
    void AddBox(Part part, SpacePoint low, SpacePoint high, const Brush& brush);

private:
    void Draw(Part part, std::span<const SpacePoint> corners, SpacePoint normal, const Brush& brush);

    SceneBuilder& builder_;
    const SpacePlan& plan_;
};

/// A colour as it looks on a face with that normal: the front as it is, the top lighter, sides and bottom
/// darker.
Colour Shaded(Colour colour, SpacePoint normal);

} // namespace QmChart6

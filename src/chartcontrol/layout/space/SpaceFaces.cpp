#include "chartcontrol/layout/space/SpaceFaces.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// Brightness of a face that looks to the front or back, up, down, or to a side.
constexpr double FrontLight = 1.0;
constexpr double TopLight = 1.22;
constexpr double BottomLight = 0.55;
constexpr double SideLight = 0.74;
/// Outlines are a little darker than their face, so that equal faces beside each other stay apart.
constexpr double EdgeLight = 0.86;
constexpr double FaceEdgeWidth = 0.5;

std::uint8_t Lit(std::uint8_t component, double light) {
    const double lit = light <= 1 ? component * light : 255 - (255 - component) * (2 - light);
    return static_cast<std::uint8_t>(std::lround(std::clamp(lit, 0.0, 255.0)));
}

Colour Lit(Colour colour, double light) {
    return {Lit(colour.Red, light), Lit(colour.Green, light), Lit(colour.Blue, light)};
}

} // namespace

Colour Shaded(Colour colour, SpacePoint normal) {
    const double length = Dot(normal, normal);
    if (!(length > 0)) return colour;
    const double light =
        (normal.x * normal.x * SideLight + normal.y * normal.y * (normal.y > 0 ? TopLight : BottomLight) +
         normal.z * normal.z * FrontLight) /
        length;
    return Lit(colour, light);
}

SpaceFaces::Drawn SpaceFaces::Add(Part part, std::span<const SpacePoint> corners, SpacePoint normal,
                                  const Brush& brush) {
    const bool isSeen = !corners.empty() && plan_.View().Sees(normal, corners.front());
    return isSeen ? Draw(part, corners, normal, brush) : Drawn{};
}

void SpaceFaces::AddSheet(Part part, std::span<const SpacePoint> corners, SpacePoint normal,
                          const Brush& brush) {
    if (corners.empty()) return;
    Draw(part, corners, plan_.View().Sees(normal, corners.front()) ? normal : normal * -1, brush);
}

SpaceFaces::Drawn SpaceFaces::Draw(Part part, std::span<const SpacePoint> corners, SpacePoint normal,
                                   const Brush& brush) {
    Point sum;
    Box bounds = Box::Nothing();
    for (const SpacePoint& corner : corners) {
        const Point page = plan_.Page(corner);
        builder_.AddPoint(page);
        bounds.Include(page);
        sum = {sum.x + page.x, sum.y + page.y};
    }
    SceneFill fill = FillOf(brush);
    fill.colour = Shaded(fill.colour, normal);
    fill.patternColour = Shaded(fill.patternColour, normal);
    const bool open = brush.Style == BrushStyle::None;
    builder_.AddPolygon(
        part, fill,
        {PenStyle::Solid, FaceEdgeWidth, Lit(Shaded(brush.FillColor, normal), open ? 1 : EdgeLight)});
    const auto count = static_cast<double>(corners.size());
    return {{sum.x / count, sum.y / count}, bounds.Width() * bounds.Height()};
}

Point SpaceFaces::AddBox(Part part, SpacePoint low, SpacePoint high, const Brush& brush) {
    const auto corner = [&](bool x, bool y, bool z) {
        return SpacePoint{x ? high.x : low.x, y ? high.y : low.y, z ? high.z : low.z};
    };
    Drawn largest;
    const auto face = [&](const std::array<SpacePoint, 4>& corners, SpacePoint normal) {
        const Drawn drawn = Add(part, corners, normal, brush);
        if (drawn.room > largest.room) largest = drawn;
    };
    face({corner(false, false, true), corner(true, false, true), corner(true, true, true),
          corner(false, true, true)},
         {0, 0, 1});
    face({corner(false, false, false), corner(false, false, true), corner(false, true, true),
          corner(false, true, false)},
         {-1, 0, 0});
    face({corner(true, false, false), corner(true, false, true), corner(true, true, true),
          corner(true, true, false)},
         {1, 0, 0});
    face({corner(false, false, false), corner(true, false, false), corner(true, false, true),
          corner(false, false, true)},
         {0, -1, 0});
    face({corner(false, true, false), corner(true, true, false), corner(true, true, true),
          corner(false, true, true)},
         {0, 1, 0});
    face({corner(false, false, false), corner(true, false, false), corner(true, true, false),
          corner(false, true, false)},
         {0, 0, -1});
    return largest.middle;
}

} // namespace QmChart6

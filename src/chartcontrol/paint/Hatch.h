#pragma once

#include "chartcontrol/scene/Scene.h"

#include <span>
#include <vector>

namespace QmChart6 {

/// A thin line of a hatch, to be drawn with flat ends.
struct HatchLine {
    Point from;
    Point to;

    friend bool operator==(const HatchLine&, const HatchLine&) = default;
};

/// A patterned inside as plain geometry: the outline filled with `ground`, and on it everything else in
/// `ink`. Polygons are even-odd. All of it is in points, so every target shows the same pattern.
struct HatchPieces {
    Colour ground;
    Colour ink;
    double lineWidth = 0;
    std::vector<HatchLine> lines;
    std::vector<Box> boxes;
    std::vector<Point> points;
    std::vector<PointRun> polygons;

    [[nodiscard]] std::span<const Point> PointsOf(PointRun run) const {
        return {points.data() + run.first, run.count};
    }
};

/// The pieces of a pattern or hatch within an outline (even-odd). The pattern's phase hangs on the scene's
/// origin, so that neighbours line up. Any other style, or an index that there is not, is plain ground. The
/// pattern grows coarser where it would take more than some hundred thousand pieces.
HatchPieces PiecesOf(const SceneFill& fill, std::span<const Point> outline);

} // namespace QmChart6

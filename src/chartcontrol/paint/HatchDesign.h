#pragma once

#include "chartcontrol/scene/Scene.h"

#include <numbers>
#include <vector>

namespace QmChart6 {

/// How far a slanted line goes along the horizontal and along the vertical, of its length.
inline constexpr double Slant = 1 / std::numbers::sqrt2;

/// Parallel lines: period and width across them, in points. Lines broader than a point are areas with exact
/// ends.
struct LineFamily {
    enum class Direction { Horizontal, Vertical, Down, Up };

    Direction direction = Direction::Horizontal;
    double period = 6;
    double width = 0.75;
    /// Where the first line's middle lies, in points from the origin.
    double phase = 0;
    /// Lines come in groups of this many, and a group's lines are drawn in every other cell of `cell` points,
    /// the next group's in the cells between (woven patterns); 0 draws whole lines.
    int group = 0;
    double cell = 0;
    /// Which cells the first group is drawn in, and how much is left free at a cell's ends.
    int firstCell = 0;
    double cellMargin = 0;
};

/// Square dots in rows; every second row is moved by half a column.
struct DotGrid {
    double side = 1.5;
    double columnPeriod = 3;
    double rowPeriod = 3;
};

/// How a pattern is made up. Inverted exchanges the fill's two colours.
struct HatchDesign {
    bool inverted = false;
    std::vector<LineFamily> lines;
    std::vector<DotGrid> dots;
};

/// The design of a pattern or hatch; one without lines and dots for plain fills.
HatchDesign DesignOf(BrushStyle style, int index);

} // namespace QmChart6

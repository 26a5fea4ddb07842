#include "chartcontrol/paint/HatchDesign.h"

namespace QmChart6 {

namespace {

using Direction = LineFamily::Direction;

// All lengths are multiples of 0.75 points, one logical pixel, so that patterns fall on whole pixels at the
// usual screen scales. The period of slanted lines is given as measured along the horizontal.
constexpr double Hair = 0.75;

LineFamily Lines(Direction direction, double period, double width) {
    const bool slanted = direction == Direction::Down || direction == Direction::Up;
    return {direction, slanted ? period * Slant : period, width, slanted ? 0 : width / 2, 0, 0, 0, 0};
}

HatchDesign Plain(Direction direction, double period, double width) {
    return {false, {Lines(direction, period, width)}, {}};
}

HatchDesign Crossed(Direction one, Direction other, double period, double width, bool inverted = false) {
    return {inverted, {Lines(one, period, width), Lines(other, period, width)}, {}};
}

HatchDesign Dots(DotGrid grid, bool inverted = false) {
    return {inverted, {}, {grid}};
}

HatchDesign Weave() {
    // Three strands lie across each cell, those of the neighbouring cells run the other way.
    constexpr double Strand = 2.25;
    constexpr int Strands = 3;
    constexpr double Cell = Strand * Strands;
    LineFamily across{Direction::Horizontal, Strand, Hair, Strand / 2, Strands, Cell, 0, Hair / 2};
    LineFamily down = across;
    down.direction = Direction::Vertical;
    down.firstCell = 1;
    return {false, {across, down}, {}};
}

HatchDesign PatternDesign(int index) {
    switch (index) {
    case 0: // 94 percent
        return Dots({1.5, 6, 6}, true);
    case 1: // 88 percent
        return Dots({1.5, 6, 3}, true);
    case 2: // 75 percent
        return Dots({1.5, 6, 1.5}, true);
    case 3: // 50 percent
        return Dots({1.5, 3, 1.5});
    case 4: // 25 percent
        return Dots({1.5, 6, 1.5});
    case 5: // bold horizontal
        return Plain(Direction::Horizontal, 6, 3);
    case 6: // bold vertical
        return Plain(Direction::Vertical, 6, 3);
    case 7: // bold down diagonal
        return Plain(Direction::Down, 6, 3 * Slant);
    case 8: // bold up diagonal
        return Plain(Direction::Up, 6, 3 * Slant);
    case 9: // checks
        return Dots({3, 6, 3});
    case 10:
        return Weave();
    case 11: // horizontal
        return Plain(Direction::Horizontal, 3, Hair);
    case 12: // vertical
        return Plain(Direction::Vertical, 3, Hair);
    case 13: // down diagonal
        return Plain(Direction::Down, 3, Hair);
    case 14: // up diagonal
        return Plain(Direction::Up, 3, Hair);
    case 15: // grid
        return Crossed(Direction::Horizontal, Direction::Vertical, 3, Hair);
    case 16: // trellis
        return Crossed(Direction::Down, Direction::Up, 4.5, 1.5);
    case 17: // inverted trellis
        return Crossed(Direction::Down, Direction::Up, 4.5, 1.5, true);
    default:
        return {};
    }
}

HatchDesign LineHatchDesign(int index) {
    switch (index) {
    case 0:
        return Plain(Direction::Horizontal, 6, Hair);
    case 1:
        return Plain(Direction::Vertical, 6, Hair);
    case 2:
        return Plain(Direction::Down, 6, Hair);
    case 3:
        return Plain(Direction::Up, 6, Hair);
    case 4:
        return Crossed(Direction::Horizontal, Direction::Vertical, 6, Hair);
    case 5:
        return Crossed(Direction::Down, Direction::Up, 6, Hair);
    default:
        return {};
    }
}

} // namespace

HatchDesign DesignOf(BrushStyle style, int index) {
    if (style == BrushStyle::Pattern) return PatternDesign(index);
    if (style == BrushStyle::Hatch) return LineHatchDesign(index);
    return {};
}

} // namespace QmChart6

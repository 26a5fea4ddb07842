#include "chartcontrol/paint/Hatch.h"
#include "chartcontrol/scene/Outline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <set>

namespace QmChart6 {
namespace {

SceneFill FillWith(BrushStyle style, int index) {
    return {style, index, {255, 255, 255}, {0, 0, 0}};
}

std::vector<SceneFill> EveryFill() {
    std::vector<SceneFill> fills;
    for (int index = 0; index < PatternCount; ++index) fills.push_back(FillWith(BrushStyle::Pattern, index));
    for (int index = 0; index < HatchCount; ++index) fills.push_back(FillWith(BrushStyle::Hatch, index));
    return fills;
}

bool WithinOrOnRim(std::span<const Point> outline, Point point) {
    constexpr double rim = 1e-6;
    if (InsidePolygon(outline, point)) return true;
    for (std::size_t i = 0; i < outline.size(); ++i)
        if (DistanceToSegment(point, outline[i], outline[(i + 1) % outline.size()]) < rim) return true;
    return false;
}

TEST(Hatch, PiecesStayWithinAnyOutline) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> place(0, 60);
    for (int round = 0; round < 25; ++round) {
        std::vector<Point> outline;
        for (int corner = 0; corner < 3 + round % 5; ++corner)
            outline.push_back({place(random), place(random)});
        for (const SceneFill& fill : EveryFill()) {
            const HatchPieces pieces = PiecesOf(fill, outline);
            for (const HatchLine& line : pieces.lines) {
                const Point middle{(line.from.x + line.to.x) / 2, (line.from.y + line.to.y) / 2};
                EXPECT_TRUE(WithinOrOnRim(outline, middle));
                EXPECT_TRUE(WithinOrOnRim(outline, line.from));
                EXPECT_TRUE(WithinOrOnRim(outline, line.to));
            }
            for (const Box& box : pieces.boxes) EXPECT_TRUE(WithinOrOnRim(outline, box.Center()));
        }
    }
}

TEST(Hatch, EveryOneOfTheTwentyFourIsDifferent) {
    const std::vector<Point> outline = BoxOutline({0, 0, 40, 40});
    std::set<std::string> seen;
    for (const SceneFill& fill : EveryFill()) {
        const HatchPieces pieces = PiecesOf(fill, outline);
        std::string told = std::to_string(pieces.lineWidth);
        for (const HatchLine& line : pieces.lines)
            told += ' ' + std::to_string(line.from.x) + ',' + std::to_string(line.from.y) + ',' +
                    std::to_string(line.to.x) + ',' + std::to_string(line.to.y);
        for (const Box& box : pieces.boxes)
            told += " b" + std::to_string(box.left) + ',' + std::to_string(box.top);
        for (const Point& point : pieces.points)
            told += " p" + std::to_string(point.x) + ',' + std::to_string(point.y);
        EXPECT_TRUE(seen.insert(told).second) << "index " << fill.index;
    }
}

TEST(Hatch, AHugeAreaDoesNotCostWithoutBound) {
    const std::vector<Point> outline = BoxOutline({0, 0, 20000, 20000});
    for (const SceneFill& fill : EveryFill()) {
        const HatchPieces pieces = PiecesOf(fill, outline);
        EXPECT_LT(pieces.lines.size() + pieces.boxes.size() + pieces.polygons.size(), 600'000U);
    }
}

} // namespace
} // namespace QmChart6

#include "chartcontrol/layout/pie/PieLabels.h"

#include "chartcontrol/layout/text/LabelLines.h"
#include "chartcontrol/layout/text/LabelPlaces.h"
#include "chartcontrol/layout/text/LabelText.h"
#include "chartcontrol/layout/text/Spread.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace QmChart6 {

namespace {

/// Points: from the pie to a label, and between two labels.
constexpr double PieLabelGap = 4;
constexpr double Apart = 1.5;
/// With lines, labels stand this much farther out.
constexpr double LineRoom = 9;
/// Where labels inside may stand, as parts of the radius, and how far they stay from their slice's rim.
constexpr std::array InsideShares{0.64, 0.72, 0.56, 0.8, 0.48};
constexpr double InsideAir = 1;
/// How long the lines of labels inside are, as parts of the radius.
constexpr std::array LineShares{1.0, 0.6};
/// A label without a line that had to move farther than this many of its heights would be taken for another
/// slice's.
constexpr double FarthestWithoutLine = 1.2;
constexpr double LongestPieLabel = 140;

Point DirectionOf(double turn) {
    const double angle = 2 * std::numbers::pi * turn;
    return {std::sin(angle), -std::cos(angle)};
}

TextBlock BlockOf(const PieLabel& label, double length, const TextMeasurer& measurer) {
    const DataPointLabel& look = label.look->DataPointLabel;
    return BreakLabel(label.text, look.VtFont, look.TextLayout.Orientation, length, measurer);
}

LabelLineStyle LineOf(const PieLabel& label) {
    return label.look->DataPointLabel.LineStyle;
}

/// A label on its way to a place at one side of the pie.
struct Placed {
    const PieLabel* label = nullptr;
    TextBlock block;
    Size size;
    double wished = 0; // the middle's y
    double y = 0;
};

/// The place on a slice where all of a label lies on it: the usual one, else farther out, else nearer.
std::optional<FoundPlace> FindOnSlice(const Ground& ground, const PieLabel& label, const Size& size,
                                      const PieCircle& circle) {
    const Point direction = DirectionOf(label.turn);
    const double whole = label.share > 0.999 ? 0 : 1; // the only slice's label stands in the middle
    for (const double share : InsideShares) {
        const double away = circle.radius * share * whole;
        const Point middle{circle.center.x + direction.x * away, circle.center.y + direction.y * away};
        const Box box{middle.x - size.width / 2, middle.y - size.height / 2, middle.x + size.width / 2,
                      middle.y + size.height / 2};
        const Ground::Footing footing = ground.Under(box.Grown(InsideAir));
        const bool onSlice =
            footing.share > 0.999 && footing.lines == 0 && ground.PartOf(footing.shape) == label.slice;
        if (footing.free && onSlice)
            return FoundPlace{
                {box, LabelStand::On}, footing.even ? footing.colour : ground.PlainColour(), !footing.even};
    }
    return std::nullopt;
}

/// In lines that are as long as a slice allows, else in shorter ones; no word is broken. False without room.
bool PlaceOnSlice(const LayoutContext& context, const PieLabel& label, const PieCircle& circle,
                  Ground& ground) {
    for (const double share : LineShares) {
        const TextBlock block = BlockOf(label, share * circle.radius, context.measurer);
        if (block.IsEmpty()) return true;
        if (block.splitsWord) return false;
        const std::optional<FoundPlace> found = FindOnSlice(ground, label, block.Extent(), circle);
        if (!found) continue;
        ground.Take(found->place.box);
        DrawLabel(context.builder, label.part, block, *found);
        return true;
    }
    return false;
}

class OutsideLabels {
public:
    OutsideLabels(const LayoutContext& context, const PieCircle& circle, Ground& ground)
        : context_(context), circle_(circle), ground_(ground) {}

    int Side(std::vector<const PieLabel*> labels, bool right) {
        int omitted = DropWhatCannotFit(labels);
        std::vector<Placed> side;
        for (const PieLabel* label : labels) {
            const double room =
                right ? circle_.cell.right - circle_.center.x : circle_.center.x - circle_.cell.left;
            const TextBlock block = BlockOf(*label, std::min(room, LongestPieLabel), context_.measurer);
            const double reach = Reach(*label);
            const double wished =
                circle_.center.y + DirectionOf(label->turn).y * (reach + block.Extent().height / 2);
            side.push_back({label, block, block.Extent(), wished, wished});
        }
        std::stable_sort(side.begin(), side.end(),
                         [](const Placed& a, const Placed& b) { return a.wished < b.wished; });
        std::vector<SpreadPiece> pieces;
        for (const Placed& placed : side) pieces.push_back({placed.size.height + Apart, placed.wished});
        const std::vector<double> middles = SpreadOut(pieces, circle_.cell.top, circle_.cell.bottom);
        for (std::size_t i = 0; i < side.size(); ++i) {
            side[i].y = middles[i] - Apart / 2;
            if (!Place(side[i], right)) ++omitted;
        }
        return omitted;
    }

private:
    [[nodiscard]] double Reach(const PieLabel& label) const {
        return circle_.radius + PieLabelGap + (LineOf(label) == LabelLineStyle::None ? 0 : LineRoom);
    }

    /// The labels of the smallest slices go until the others fit one below the other.
    [[nodiscard]] int DropWhatCannotFit(std::vector<const PieLabel*>& labels) const {
        const auto height = [&](const PieLabel* label) {
            return BlockOf(*label, LongestPieLabel, context_.measurer).Extent().height + Apart;
        };
        double all = 0;
        for (const PieLabel* label : labels) all += height(label);
        int dropped = 0;
        while (!labels.empty() && all > circle_.cell.Height()) {
            const auto smallest =
                std::min_element(labels.begin(), labels.end(),
                                 [](const PieLabel* a, const PieLabel* b) { return a->share < b->share; });
            all -= height(*smallest);
            labels.erase(smallest);
            ++dropped;
        }
        return dropped;
    }

    /// The x where a label at that height clears the pie.
    [[nodiscard]] double Clear(const Placed& placed) const {
        const double reach = Reach(*placed.label);
        const double away = std::max(0.0, std::abs(placed.y - circle_.center.y) - placed.size.height / 2);
        const double wished = std::abs(DirectionOf(placed.label->turn).x) * reach;
        return std::max(away < reach ? std::sqrt(reach * reach - away * away) : 0, std::min(wished, reach));
    }

    /// A word that is whole elsewhere is not broken here.
    [[nodiscard]] bool SplitsInVain(const TextBlock& block, const PieLabel& label) const {
        return block.splitsWord && !BlockOf(label, LongestPieLabel, context_.measurer).splitsWord;
    }

    bool Place(const Placed& placed, bool right) {
        const LabelLineStyle style = LineOf(*placed.label);
        const bool moved = std::abs(placed.y - placed.wished) > FarthestWithoutLine * placed.size.height;
        if (moved && style == LabelLineStyle::None) return false;
        const double x = circle_.center.x + (right ? Clear(placed) : -Clear(placed));
        const double left = right ? x : x - placed.size.width;
        const double room = right ? circle_.cell.right - x : x - circle_.cell.left;
        TextBlock block = placed.block;
        Box box{left, placed.y - placed.size.height / 2, left + placed.size.width,
                placed.y + placed.size.height / 2};
        if (placed.size.width > room) {
            block = BlockOf(*placed.label, room, context_.measurer);
            const Size size = block.Extent();
            if (block.IsEmpty() || size.width > room + 0.01) return false;
            box = {right ? x : x - size.width, placed.y - size.height / 2, right ? x + size.width : x,
                   placed.y + size.height / 2};
        }
        if (SplitsInVain(block, *placed.label)) return false;
        const Ground::Footing footing = ground_.Under(box);
        if (!footing.free || !footing.even) return false;
        const Point direction = DirectionOf(placed.label->turn);
        const Point rim{circle_.center.x + direction.x * (circle_.radius + 1),
                        circle_.center.y + direction.y * (circle_.radius + 1)};
        const std::vector<Point> way = LabelLine(style, rim, box);
        if (!ground_.IsFreeWay(way)) return false;
        ground_.Draw(way);
        ground_.Take(box);
        AddLabelLine(context_.builder, placed.label->part, way, block.font.VtColor);
        DrawLabel(context_.builder, placed.label->part, block, {{box}, footing.colour, false},
                  right ? HorizontalAlignment::Left : HorizontalAlignment::Right);
        return true;
    }

    const LayoutContext& context_;
    const PieCircle& circle_;
    Ground& ground_;
};

} // namespace

Size OutsideReach(const std::vector<PieLabel>& labels, const TextMeasurer& measurer) {
    Size reach;
    for (const PieLabel& label : labels) {
        const Size size = BlockOf(label, LongestPieLabel, measurer).Extent();
        const double line = LineOf(label) == LabelLineStyle::None ? 0 : LineRoom;
        reach = {std::max(reach.width, size.width + PieLabelGap + line),
                 std::max(reach.height, size.height + PieLabelGap + line)};
    }
    return reach;
}

std::vector<PieLabel> PlaceInside(const LayoutContext& context, const std::vector<PieLabel>& labels,
                                  const PieCircle& circle, Ground& ground) {
    std::vector<PieLabel> left;
    for (const PieLabel& label : labels)
        if (!PlaceOnSlice(context, label, circle, ground)) left.push_back(label);
    return left;
}

int PlaceOutside(const LayoutContext& context, const std::vector<PieLabel>& labels, const PieCircle& circle,
                 Ground& ground) {
    std::vector<const PieLabel*> left;
    std::vector<const PieLabel*> right;
    for (const PieLabel& label : labels) (DirectionOf(label.turn).x < 0 ? left : right).push_back(&label);
    OutsideLabels places(context, circle, ground);
    return places.Side(right, true) + places.Side(left, false);
}

} // namespace QmChart6

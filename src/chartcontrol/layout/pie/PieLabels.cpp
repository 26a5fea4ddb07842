#include "chartcontrol/layout/pie/PieLabels.h"

#include "chartcontrol/layout/text/LabelLines.h"
#include "chartcontrol/layout/text/LabelText.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace QmChart6 {

namespace {

/// Points: from the pie to a label, and between two labels.
constexpr double PieLabelGap = 4;
constexpr double Apart = 1.5;
/// With lines, labels stand this much farther out.
constexpr double LineRoom = 9;
/// Where labels inside stand, as a part of the radius.
constexpr double InsideShare = 0.64;
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
    return BreakText(label.text, look.VtFont, look.TextLayout.Orientation, {length, 2}, measurer);
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

/// Moves labels, sorted by their wish, as little as can be so that none meets the next and all stay within.
/// Neighbours that meet become one block that stands at the mean of its members' wishes.
void Spread(std::vector<Placed>& labels, double top, double bottom) {
    struct Block {
        std::size_t first;
        std::size_t count;
        double sum; // of what each member wishes for the block's start
        double height;
        [[nodiscard]] double Start(double low, double high) const {
            return std::clamp(sum / static_cast<double>(count), low, std::max(low, high - height));
        }
    };
    std::vector<Block> blocks;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const double height = labels[i].size.height + Apart;
        blocks.push_back({i, 1, labels[i].wished - height / 2, height});
        while (blocks.size() > 1) {
            Block& before = blocks[blocks.size() - 2];
            const Block& last = blocks.back();
            if (before.Start(top, bottom) + before.height <= last.Start(top, bottom)) break;
            // A member's wish for the start of the joint block is its own less what stands above it.
            before.sum += last.sum - static_cast<double>(last.count) * before.height;
            before.count += last.count;
            before.height += last.height;
            blocks.pop_back();
        }
    }
    for (const Block& block : blocks) {
        double y = block.Start(top, bottom);
        for (std::size_t i = block.first; i < block.first + block.count; ++i) {
            const double height = labels[i].size.height + Apart;
            labels[i].y = y + height / 2;
            y += height;
        }
    }
}

class OutsideLabels {
public:
    OutsideLabels(const LayoutContext& context, const PieCircle& circle, Occupancy& taken)
        : context_(context), circle_(circle), taken_(taken) {}

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
        Spread(side, circle_.cell.top, circle_.cell.bottom);
        for (const Placed& placed : side)
            if (!Place(placed, right)) ++omitted;
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
        if (!taken_.Take(box)) return false;
        const Point direction = DirectionOf(placed.label->turn);
        const Point rim{circle_.center.x + direction.x * (circle_.radius + 1),
                        circle_.center.y + direction.y * (circle_.radius + 1)};
        AddLabelLine(context_.builder, placed.label->part, style, rim, box, block.font.VtColor);
        PlaceText(context_.builder, placed.label->part, block, box,
                  right ? HorizontalAlignment::Left : HorizontalAlignment::Right, VerticalAlignment::Center);
        return true;
    }

    const LayoutContext& context_;
    const PieCircle& circle_;
    Occupancy& taken_;
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

int PlaceInside(const LayoutContext& context, const std::vector<PieLabel>& labels, const PieCircle& circle,
                Occupancy& taken) {
    int omitted = 0;
    for (const PieLabel& label : labels) {
        TextBlock block = BlockOf(label, circle.radius, context.measurer);
        const Size size = block.Extent();
        const Point direction = DirectionOf(label.turn);
        const Point middle{circle.center.x + direction.x * circle.radius * InsideShare,
                           circle.center.y + direction.y * circle.radius * InsideShare};
        const Box box{middle.x - size.width / 2, middle.y - size.height / 2, middle.x + size.width / 2,
                      middle.y + size.height / 2};
        // A label that is wider than its slice there would lie on the next one.
        const double chord =
            2 * circle.radius * InsideShare * std::sin(std::numbers::pi * std::min(label.share, 0.5));
        const bool fits = label.share >= 0.5 || chord >= std::min(size.width, size.height);
        if (!fits || !taken.Take(box)) {
            ++omitted;
            continue;
        }
        block.font = ReadableFont(block.font, label.look->Brush.FillColor);
        PlaceText(context.builder, label.part, block, box, HorizontalAlignment::Center,
                  VerticalAlignment::Center);
    }
    return omitted;
}

int PlaceOutside(const LayoutContext& context, const std::vector<PieLabel>& labels, const PieCircle& circle,
                 Occupancy& taken) {
    std::vector<const PieLabel*> left;
    std::vector<const PieLabel*> right;
    for (const PieLabel& label : labels) (DirectionOf(label.turn).x < 0 ? left : right).push_back(&label);
    OutsideLabels places(context, circle, taken);
    return places.Side(right, true) + places.Side(left, false);
}

} // namespace QmChart6

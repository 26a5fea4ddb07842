#include "chartcontrol/layout/text/TitleLayout.h"

#include "chartcontrol/layout/text/BackdropLayout.h"
#include "chartcontrol/layout/text/Edges.h"
#include "chartcontrol/layout/text/TextBlock.h"
#include "chartcontrol/model/Places.h"

#include <algorithm>
#include <array>

namespace QmChart6 {

namespace {

/// Titles get at most this part of the free height, or width when they stand at a side.
constexpr double LargestTitleShare = 1.0 / 3;
constexpr int MostLinesOfTitle = 4;
/// Room between the title and what it stands beside, as a part of its font's size.
constexpr double GapShare = 0.7;

Box BoxOf(const CoordinateRect& rect) {
    return {std::min(rect.Min.X, rect.Max.X), std::min(rect.Min.Y, rect.Max.Y),
            std::max(rect.Min.X, rect.Max.X), std::max(rect.Min.Y, rect.Max.Y)};
}

bool IsUpright(const Title& title) {
    return title.TextLayout.Orientation != Orientation::Horizontal;
}

TextBlock Break(const LayoutContext& context, const Title& title, const Box& room, double share) {
    const bool upright = IsUpright(title);
    const double length = upright ? room.Height() : room.Width();
    const double depth = share * (upright ? room.Width() : room.Height());
    const double leading = context.measurer.Measure(QStringLiteral("x"), title.VtFont).Height();
    const int lines = std::clamp(static_cast<int>(depth / std::max(1.0, leading)), 1, MostLinesOfTitle);
    return BreakText(title.Text, title.VtFont, title.TextLayout.Orientation, {length, lines},
                     context.measurer);
}

void Place(const LayoutContext& context, const Title& title, PartCode code, const TextBlock& block,
           const Box& box) {
    LayOutBackdrop(context.builder, {code}, title.Backdrop, box);
    PlaceText(context.builder, {code}, block, box, title.TextLayout.HorzAlignment,
              title.TextLayout.VertAlignment);
}

/// Where a corner title stands along the edge that it was given.
Box Along(const Box& edge, Side side, LocationType location, const Size& extent) {
    Box box = edge;
    if (side == Side::Left || side == Side::Right) {
        if (location == LocationType::TopLeft || location == LocationType::TopRight)
            box.bottom = std::min(edge.bottom, edge.top + extent.height);
        if (location == LocationType::BottomLeft || location == LocationType::BottomRight)
            box.top = std::max(edge.top, edge.bottom - extent.height);
    } else {
        if (location == LocationType::TopLeft || location == LocationType::BottomLeft)
            box.right = std::min(edge.right, edge.left + extent.width);
        if (location == LocationType::TopRight || location == LocationType::BottomRight)
            box.left = std::max(edge.left, edge.right - extent.width);
    }
    return box;
}

/// Keeps the rest of the chart off a title that was placed by hand right at a side, as it would be if layout
/// had put it there.
void KeepOff(Box& free, const Box& box, double gap) {
    struct Need {
        Side side;
        double near; // how far from the side the title begins
        double depth;
        double most;
    };
    const double width = LargestTitleShare * free.Width();
    const double height = LargestTitleShare * free.Height();
    const std::array needs{Need{Side::Top, box.top - free.top, box.bottom - free.top, height},
                           Need{Side::Bottom, free.bottom - box.bottom, free.bottom - box.top, height},
                           Need{Side::Left, box.left - free.left, box.right - free.left, width},
                           Need{Side::Right, free.right - box.right, free.right - box.left, width}};
    const Need& least = *std::min_element(needs.begin(), needs.end(), [](const Need& one, const Need& other) {
        return one.depth < other.depth;
    });
    if (least.near <= gap && least.depth > 0 && least.depth <= least.most)
        CutOff(free, least.side, least.depth, gap);
}

/// Titles that run along the chart's width stand above or below it, corners included.
Side SideOfTitle(const Title& title) {
    const LocationType location = title.Location.LocationType;
    if (IsUpright(title)) return SideOf(location);
    if (location == LocationType::TopLeft || location == LocationType::TopRight) return Side::Top;
    if (location == LocationType::BottomLeft || location == LocationType::BottomRight) return Side::Bottom;
    return SideOf(location);
}

/// Where a text of that extent stands along one side of a rectangle: in its middle where it is longer.
double Start(double from, double to, double extent, bool atFrom, bool atTo) {
    if (extent <= to - from && atFrom) return from;
    if (extent <= to - from && atTo) return to - extent;
    return (from + to - extent) / 2;
}

/// Where the whole text stands that was placed by hand: as its rectangle says, and no part of it outside the
/// chart.
Box PlaceOfText(const Title& title, const Size& extent, const Box& asked, const Size& whole) {
    const HorizontalAlignment across = title.TextLayout.HorzAlignment;
    const VerticalAlignment down = title.TextLayout.VertAlignment;
    const double left = Start(asked.left, asked.right, extent.width, across == HorizontalAlignment::Left,
                              across == HorizontalAlignment::Right);
    const double top = Start(asked.top, asked.bottom, extent.height, down == VerticalAlignment::Top,
                             down == VerticalAlignment::Bottom);
    return MovedInto({0, 0, whole.width, whole.height},
                     {left, top, left + extent.width, top + extent.height});
}

/// A text placed by hand wraps in the chart's width, or height where it is turned, and is all there.
void LayOutByHand(const LayoutContext& context, const Title& title, PartCode code, Box& free) {
    const Size& whole = context.request.size;
    const Box asked = BoxOf(RectIn(title.Location, {whole.width, whole.height}));
    const bool upright = IsUpright(title);
    const double leading = context.measurer.Measure(QStringLiteral("x"), title.VtFont).Height();
    const int lines = static_cast<int>((upright ? whole.width : whole.height) / std::max(1.0, leading));
    const TextBlock block =
        BreakText(title.Text, title.VtFont, title.TextLayout.Orientation,
                  {upright ? whole.height : whole.width, std::max(1, lines)}, context.measurer);
    if (block.IsEmpty()) {
        LayOutBackdrop(context.builder, {code}, title.Backdrop, asked);
        return;
    }
    const Box text = PlaceOfText(title, block.Extent(), asked, whole);
    Box box = MovedInto({0, 0, whole.width, whole.height}, asked);
    box.Include(text);
    LayOutBackdrop(context.builder, {code}, title.Backdrop, box);
    PlaceText(context.builder, {code}, block, text, title.TextLayout.HorzAlignment,
              title.TextLayout.VertAlignment);
    KeepOff(free, box, GapShare * title.VtFont.Size);
}

} // namespace

void LayOutTitle(const LayoutContext& context, const Title& title, PartCode code, Box& free) {
    if (title.Location.LocationType == LocationType::Custom) {
        LayOutByHand(context, title, code, free);
        return;
    }
    const Side side = SideOfTitle(title);
    Box room = free;
    const bool beside = side == Side::Left || side == Side::Right;
    if (beside && !IsUpright(title)) room.right = room.left + LargestTitleShare * free.Width();
    const TextBlock block = Break(context, title, room, LargestTitleShare);
    if (block.IsEmpty()) return;
    const Size extent = block.Extent();
    const double depth = beside ? extent.width : extent.height;
    const Box edge = CutOff(free, side, depth, GapShare * title.VtFont.Size);
    Place(context, title, code, block, Along(edge, side, title.Location.LocationType, extent));
}

} // namespace QmChart6

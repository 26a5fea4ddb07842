#include "viewer/TitlePlacement.h"

#include "chartcontrol/layout/text/TextBlock.h"
#include "chartcontrol/scene/HitTest.h"

#include <algorithm>
#include <utility>

namespace QmChart6 {

namespace {

constexpr int MostLines = 4;
/// However near to an edge a title stands, it may be as long as this part of the chart's side.
constexpr double LeastShare = 1.0 / 3;
/// Room round the text, in points, so that rounding does not break it anew.
constexpr double Slack = 0.5;

Coordinate CenterOf(const CoordinateRect& rect) {
    return {(rect.Min.X + rect.Max.X) / 2, (rect.Min.Y + rect.Max.Y) / 2};
}

bool IsUpright(const Title& title) {
    return title.TextLayout.Orientation != Orientation::Horizontal;
}

/// How long a text may be whose middle is at `center` of a side, and is to stay within it.
double RoomAround(double center, double side) {
    return std::max(2 * std::min(center, side - center), LeastShare * side);
}

Size ExtentOfText(const Title& title, Coordinate center, const Size& chartSize,
                  const TextMeasurer& measurer) {
    const double length =
        IsUpright(title) ? RoomAround(center.Y, chartSize.height) : RoomAround(center.X, chartSize.width);
    const TextBlock block =
        BreakText(title.Text, title.VtFont, title.TextLayout.Orientation, {length, MostLines}, measurer);
    Size extent = block.Extent();
    // Letters below each other are given a whole line each.
    if (title.TextLayout.Orientation == Orientation::Vertical)
        extent.height = block.leading * static_cast<double>(block.lines.size());
    return {extent.width + 2 * Slack, extent.height + 2 * Slack};
}

/// In single precision, as looks are stored: a chart that is loaded again is the same to the last pixel.
double AsStored(double place) {
    return static_cast<double>(static_cast<float>(place));
}

/// Whether the room that the text takes is what it was.
bool TakesTheSameRoom(const Title& left, const Title& right) {
    return left.Text == right.Text && left.VtFont.Name == right.VtFont.Name &&
           left.VtFont.Size == right.VtFont.Size && left.VtFont.Style == right.VtFont.Style &&
           left.TextLayout.Orientation == right.TextLayout.Orientation;
}

} // namespace

std::optional<CoordinateRect> StandingRect(const Title& title, const Scene& scene) {
    if (title.Location.LocationType == LocationType::Custom) return title.Location.Rect;
    const std::optional<Box> text = BoundsOf(scene, {PartCode::Title});
    if (!text) return std::nullopt;
    return CoordinateRect{{text->left, text->top}, {text->right, text->bottom}};
}

void PlaceTitleAround(Title& title, const CoordinateRect& before, const Title& unchanged,
                      const Size& chartSize, const TextMeasurer& measurer) {
    const Coordinate center = CenterOf(before);
    Size extent{before.Max.X - before.Min.X, before.Max.Y - before.Min.Y};
    const bool placedBefore = unchanged.Location.LocationType == LocationType::Custom;
    if (!title.Text.trimmed().isEmpty()) {
        // What was placed by hand keeps the room that it was given, unless the text needs another.
        if (!placedBefore || !TakesTheSameRoom(title, unchanged))
            extent = ExtentOfText(title, center, chartSize, measurer);
    } else if (IsUpright(title) != IsUpright(unchanged)) {
        std::swap(extent.width, extent.height);
    }
    title.Location.Rect.Min.Set(AsStored(center.X - extent.width / 2),
                                AsStored(center.Y - extent.height / 2));
    title.Location.Rect.Max.Set(AsStored(center.X + extent.width / 2),
                                AsStored(center.Y + extent.height / 2));
    title.Location.LocationType = LocationType::Custom;
}

} // namespace QmChart6

#include "viewer/TitlePlacement.h"

#include "chartcontrol/model/Places.h"
#include "chartcontrol/scene/HitTest.h"

#include <utility>

namespace QmChart6 {

namespace {

bool IsUpright(const Title& title) {
    return title.TextLayout.Orientation != Orientation::Horizontal;
}

} // namespace

std::optional<CoordinateRect> StandingRect(const Title& title, const Scene& scene) {
    if (title.Location.LocationType == LocationType::Custom)
        return RectIn(title.Location, {scene.size.width, scene.size.height});
    const std::optional<Box> text = BoundsOf(scene, {PartCode::Title});
    if (!text) return std::nullopt;
    return CoordinateRect{{text->left, text->top}, {text->right, text->bottom}};
}

void PlaceTitleAround(Title& title, const CoordinateRect& before, const Title& unchanged,
                      const Size& chartSize) {
    const Coordinate center{(before.Min.X + before.Max.X) / 2, (before.Min.Y + before.Max.Y) / 2};
    Coordinate half{(before.Max.X - before.Min.X) / 2, (before.Max.Y - before.Min.Y) / 2};
    if (IsUpright(title) != IsUpright(unchanged)) std::swap(half.X, half.Y);
    title.Location.Rect.Min.Set(center.X - half.X, center.Y - half.Y);
    title.Location.Rect.Max.Set(center.X + half.X, center.Y + half.Y);
    title.Location.Rect = AsStored(title.Location.Rect);
    title.Location.Within = {chartSize.width, chartSize.height};
    title.Location.LocationType = LocationType::Custom;
}

} // namespace QmChart6

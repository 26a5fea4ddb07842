#include "chartcontrol/layout/text/LabelPlaces.h"

#include "chartcontrol/layout/text/LabelLines.h"
#include "chartcontrol/model/ColourContrast.h"

#include <algorithm>

namespace QmChart6 {

namespace {

/// From mark to label, in points.
constexpr double PlaceGap = 2.5;
/// How many of its own heights a label may stand away from its mark.
constexpr int FarthestAway = 3;
/// What a label's own colour needs on a mark: more than elsewhere, for a grid line may shine through.
constexpr double ContrastOnMarks = 6;
/// With less than this a grid line that shines through is hidden under the label.
constexpr double ContrastOverLines = 5.4;
/// An edge may lie so much farther than the cells of the ground tell, in points.
constexpr double Coarseness = 0.5;
/// A label on its bar stays so far from the bar's rim.
constexpr double Air = 1.5;
/// What part of a label's place lines may cover for a plate to be laid over them.
constexpr double MostLines = 0.25;
/// What part of a plate must lie on one surface: one over a bar's rim would hide where the bar ends.
constexpr double LeastOfPlate = 0.6;

Box CenteredAt(double x, double y, const Size& size) {
    return {x - size.width / 2, y - size.height / 2, x + size.width / 2, y + size.height / 2};
}

Box Above(const Box& box, const Size& size) {
    return CenteredAt(box.Center().x, box.top - PlaceGap - size.height / 2, size);
}
Box Below(const Box& box, const Size& size) {
    return CenteredAt(box.Center().x, box.bottom + PlaceGap + size.height / 2, size);
}
Box AtTopWithin(const Box& box, const Size& size) {
    return CenteredAt(box.Center().x, box.top + PlaceGap + size.height / 2, size);
}
Box AtBottomWithin(const Box& box, const Size& size) {
    return CenteredAt(box.Center().x, box.bottom - PlaceGap - size.height / 2, size);
}
Box LeftOf(const Box& box, const Size& size) {
    return CenteredAt(box.left - PlaceGap - size.width / 2, box.Center().y, size);
}
Box RightOf(const Box& box, const Size& size) {
    return CenteredAt(box.right + PlaceGap + size.width / 2, box.Center().y, size);
}
/// Beside an upper or lower corner.
Box AtCorner(const Box& box, const Size& size, bool right, bool above) {
    const double x = right ? box.right + size.width / 2 : box.left - size.width / 2;
    return CenteredAt(x, (above ? Above(box, size) : Below(box, size)).Center().y, size);
}

/// A bar's end is where its value is, its base where it stands.
std::vector<LabelPlace> PlacesAtBar(LabelLocation location, const LabelAnchor& anchor, const Size& size) {
    const Box& box = anchor.box;
    const LabelPlace beyond{anchor.negative ? Below(box, size) : Above(box, size)};
    const LabelPlace atEnd{anchor.negative ? AtBottomWithin(box, size) : AtTopWithin(box, size),
                           LabelStand::On};
    const LabelPlace atBase{anchor.negative ? AtTopWithin(box, size) : AtBottomWithin(box, size),
                            LabelStand::On};
    const Point center = box.Center();
    const LabelPlace middle{CenteredAt(center.x, center.y, size), LabelStand::On};
    const LabelPlace left{LeftOf(box, size)};
    const LabelPlace right{RightOf(box, size)};
    switch (location) {
    case LabelLocation::BelowPoint:
        return {atEnd, beyond, right, left};
    case LabelLocation::Base:
        return {atBase, beyond, right, left};
    case LabelLocation::Center:
    case LabelLocation::Inside:
        return {middle, beyond, right, left};
    case LabelLocation::Left:
        return {left, middle, beyond};
    case LabelLocation::Right:
        return {right, middle, beyond};
    case LabelLocation::None:
    case LabelLocation::AbovePoint:
    case LabelLocation::Outside:
        break;
    }
    return {beyond, atEnd};
}

std::vector<LabelPlace> PlacesAtPoint(LabelLocation location, const Box& box, const Size& size) {
    const LabelPlace above{Above(box, size)};
    const LabelPlace below{Below(box, size)};
    const LabelPlace left{LeftOf(box, size)};
    const LabelPlace right{RightOf(box, size)};
    std::vector<LabelPlace> places;
    switch (location) {
    case LabelLocation::BelowPoint:
    case LabelLocation::Base:
        places = {below, above, right, left};
        break;
    case LabelLocation::Center:
    case LabelLocation::Inside:
        places = {{CenteredAt(box.Center().x, box.Center().y, size)}, above, below, right, left};
        break;
    case LabelLocation::Left:
        places = {left, right, above, below};
        break;
    case LabelLocation::Right:
        places = {right, left, above, below};
        break;
    case LabelLocation::None:
    case LabelLocation::AbovePoint:
    case LabelLocation::Outside:
        places = {above, below, right, left};
        break;
    }
    for (const bool upper : {true, false})
        for (const bool onRight : {true, false}) places.push_back({AtCorner(box, size, onRight, upper)});
    return places;
}

bool IsWithin(const Box& inner, const Box& outer) {
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

/// Whether a label may stand there without a plate.
bool IsClear(const LabelAnchor& anchor, const LabelPlace& place, const Ground::Footing& footing) {
    if (place.stand == LabelStand::On) return IsWithin(place.box, anchor.box.Grown(-Air));
    if (!footing.even) return false;
    // On another's bar it would be taken for that one's.
    return !anchor.isBar || footing.shape == Ground::Plain;
}

/// Whether the line to a label that stands away crosses no other label.
bool IsReached(const Ground& ground, const LabelAnchor& anchor, const LabelPlace& place) {
    if (place.stand != LabelStand::Away) return true;
    // Straight or bent, the line to a label above or below its mark runs the same way.
    return ground.IsFreeWay(LabelLine(LabelLineStyle::Straight, LineStart(anchor, place.box), place.box));
}

std::optional<FoundPlace> FindClear(const Ground& ground, const LabelAnchor& anchor,
                                    const std::vector<LabelPlace>& places) {
    for (const LabelPlace& place : places) {
        const Ground::Footing footing = ground.Under(place.box.Grown(Coarseness));
        if (footing.free && IsClear(anchor, place, footing) && IsReached(ground, anchor, place))
            return FoundPlace{place, footing.even ? footing.colour : ground.PlainColour(), !footing.even,
                              footing.even && footing.shape != Ground::Plain};
    }
    return std::nullopt;
}

std::optional<FoundPlace> FindForPlate(const Ground& ground, const LabelAnchor& anchor,
                                       const std::vector<LabelPlace>& places) {
    const FoundPlace* best = nullptr;
    std::vector<FoundPlace> found;
    found.reserve(places.size());
    double fewest = MostLines;
    for (const LabelPlace& place : places) {
        const Ground::Footing footing = ground.Under(place.box.Grown(PlateRim));
        if (!footing.free || footing.share < LeastOfPlate || footing.lines >= fewest ||
            !IsReached(ground, anchor, place))
            continue;
        fewest = footing.lines;
        found.push_back({place, footing.colour, true});
        best = &found.back();
    }
    return best == nullptr ? std::nullopt : std::optional(*best);
}

} // namespace

Point LineStart(const LabelAnchor& anchor, const Box& label) {
    return {anchor.box.Center().x,
            label.Center().y < anchor.box.Center().y ? anchor.box.top : anchor.box.bottom};
}

std::vector<LabelPlace> PlacesFor(LabelLocation location, const LabelAnchor& anchor, const Size& size,
                                  bool withLine) {
    std::vector<LabelPlace> places =
        anchor.isBar ? PlacesAtBar(location, anchor, size) : PlacesAtPoint(location, anchor.box, size);
    if (!withLine) return places;
    for (int step = 1; step <= FarthestAway; ++step) {
        const double away = step * size.height * 1.2 + 4;
        for (const double direction : {anchor.negative ? 1.0 : -1.0, anchor.negative ? -1.0 : 1.0}) {
            Box box = direction < 0 ? Above(anchor.box, size) : Below(anchor.box, size);
            box.top += direction * away;
            box.bottom += direction * away;
            places.push_back({box, LabelStand::Away});
        }
    }
    return places;
}

std::optional<FoundPlace> FindPlace(const Ground& ground, const LabelAnchor& anchor,
                                    const std::vector<LabelPlace>& places) {
    if (auto found = FindClear(ground, anchor, places)) return found;
    return anchor.isBar ? std::nullopt : FindForPlate(ground, anchor, places);
}

void DrawLabel(SceneBuilder& builder, Part part, TextBlock block, const FoundPlace& found,
               HorizontalAlignment alignment) {
    const double contrast = found.onMark ? ContrastOnMarks : TextContrast;
    block.font.VtColor = ReadableOn(found.ground, block.font.VtColor, contrast);
    const bool hidesLines = found.onMark && Contrast(found.ground, block.font.VtColor) < ContrastOverLines;
    if (found.plate || hidesLines)
        builder.AddRectangle(part, found.place.box.Grown(found.plate ? PlateRim : Coarseness),
                             SolidFill(found.ground), {}, false);
    PlaceText(builder, part, block, found.place.box, alignment, VerticalAlignment::Center);
}

} // namespace QmChart6

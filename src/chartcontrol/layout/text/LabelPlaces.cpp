#include "chartcontrol/layout/text/LabelPlaces.h"

namespace QmChart6 {

namespace {

/// From mark to label, in points.
constexpr double PlaceGap = 2.5;
/// How many of its own heights a label may stand away from its mark.
constexpr int FarthestAway = 3;

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

/// A bar's end is where its value is, its base where it stands.
std::vector<Box> PlacesAtBar(LabelLocation location, const LabelAnchor& anchor, const Size& size) {
    const Box& box = anchor.box;
    const Box beyond = anchor.negative ? Below(box, size) : Above(box, size);
    const Box atEnd = anchor.negative ? AtBottomWithin(box, size) : AtTopWithin(box, size);
    const Box atBase = anchor.negative ? AtTopWithin(box, size) : AtBottomWithin(box, size);
    const Point middle = box.Center();
    switch (location) {
    case LabelLocation::BelowPoint:
        return {atEnd, beyond};
    case LabelLocation::Base:
        return {atBase};
    case LabelLocation::Center:
    case LabelLocation::Inside:
        return {CenteredAt(middle.x, middle.y, size)};
    case LabelLocation::Left:
        return {LeftOf(box, size)};
    case LabelLocation::Right:
        return {RightOf(box, size)};
    case LabelLocation::None:
    case LabelLocation::AbovePoint:
    case LabelLocation::Outside:
        break;
    }
    return {beyond};
}

std::vector<Box> PlacesAtPoint(LabelLocation location, const Box& box, const Size& size) {
    const Box above = Above(box, size);
    const Box below = Below(box, size);
    const Box left = LeftOf(box, size);
    const Box right = RightOf(box, size);
    switch (location) {
    case LabelLocation::BelowPoint:
    case LabelLocation::Base:
        return {below, above, right, left};
    case LabelLocation::Center:
    case LabelLocation::Inside:
        return {CenteredAt(box.Center().x, box.Center().y, size)};
    case LabelLocation::Left:
        return {left, right, above, below};
    case LabelLocation::Right:
        return {right, left, above, below};
    case LabelLocation::None:
    case LabelLocation::AbovePoint:
    case LabelLocation::Outside:
        break;
    }
    return {above, below, right, left};
}

} // namespace

std::vector<LabelPlace> PlacesFor(LabelLocation location, const LabelAnchor& anchor, const Size& size,
                                  bool withLine) {
    std::vector<LabelPlace> places;
    for (const Box& box :
         anchor.isBar ? PlacesAtBar(location, anchor, size) : PlacesAtPoint(location, anchor.box, size))
        places.push_back({box, false});
    if (!withLine) return places;
    for (int step = 1; step <= FarthestAway; ++step) {
        const double away = step * size.height * 1.2 + 4;
        for (const double direction : {anchor.negative ? 1.0 : -1.0, anchor.negative ? -1.0 : 1.0}) {
            Box box = direction < 0 ? Above(anchor.box, size) : Below(anchor.box, size);
            box.top += direction * away;
            box.bottom += direction * away;
            places.push_back({box, true});
        }
    }
    return places;
}

} // namespace QmChart6

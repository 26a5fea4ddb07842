#include "chartcontrol/layout/text/Edges.h"

#include <algorithm>

namespace QmChart6 {

Side SideOf(LocationType location) {
    switch (location) {
    case LocationType::Top:
        return Side::Top;
    case LocationType::Bottom:
        return Side::Bottom;
    case LocationType::TopLeft:
    case LocationType::Left:
    case LocationType::BottomLeft:
        return Side::Left;
    case LocationType::TopRight:
    case LocationType::Right:
    case LocationType::BottomRight:
    case LocationType::Custom:
        break;
    }
    return Side::Right;
}

Box CutOff(Box& free, Side side, double depth, double gap) {
    Box cut = free;
    switch (side) {
    case Side::Top:
        cut.bottom = std::min(free.bottom, free.top + depth);
        free.top = std::min(free.bottom, cut.bottom + gap);
        break;
    case Side::Bottom:
        cut.top = std::max(free.top, free.bottom - depth);
        free.bottom = std::max(free.top, cut.top - gap);
        break;
    case Side::Left:
        cut.right = std::min(free.right, free.left + depth);
        free.left = std::min(free.right, cut.right + gap);
        break;
    case Side::Right:
        cut.left = std::max(free.left, free.right - depth);
        free.right = std::max(free.left, cut.left - gap);
        break;
    }
    return cut;
}

Box MovedInto(const Box& room, const Box& box) {
    const double left = std::max(room.left, std::min(box.left, room.right - box.Width()));
    const double top = std::max(room.top, std::min(box.top, room.bottom - box.Height()));
    return {left, top, left + box.Width(), top + box.Height()};
}

} // namespace QmChart6

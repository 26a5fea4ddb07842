#include "chartcontrol/layout/text/LabelLines.h"

#include <algorithm>

namespace QmChart6 {

namespace {

constexpr double Width = 0.6;
/// The level end of a bent line.
constexpr double LevelEnd = 6;
constexpr double LineGap = 1.5;

} // namespace

void AddLabelLine(SceneBuilder& builder, Part part, LabelLineStyle style, Point from, const Box& label,
                  Colour colour) {
    const Stroke stroke{PenStyle::Solid, Width, colour};
    const double y = label.Center().y;
    const bool beside = from.x < label.left || from.x > label.right;
    switch (style) {
    case LabelLineStyle::None:
        return;
    case LabelLineStyle::Straight: {
        const Point to =
            beside ? Point{from.x < label.left ? label.left - LineGap : label.right + LineGap, y}
                   : Point{from.x, from.y < label.top ? label.top - LineGap : label.bottom + LineGap};
        builder.AddLine(part, from, to, stroke, false);
        return;
    }
    case LabelLineStyle::Bent: {
        const bool toLeft = label.Center().x < from.x;
        const Point end{toLeft ? label.right + LineGap : label.left - LineGap, y};
        const double elbow = toLeft ? std::min(end.x + LevelEnd, from.x) : std::max(end.x - LevelEnd, from.x);
        builder.AddPoint(from);
        if (beside) {
            builder.AddPoint({elbow, y});
            builder.AddPoint(end);
        } else {
            builder.AddPoint({from.x, from.y < label.top ? label.top - LineGap : label.bottom + LineGap});
        }
        builder.AddPolyline(part, stroke);
        return;
    }
    }
}

} // namespace QmChart6

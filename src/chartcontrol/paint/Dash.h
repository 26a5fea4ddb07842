#pragma once

#include "chartcontrol/scene/Scene.h"

#include <cmath>
#include <span>
#include <vector>

namespace QmChart6 {

/// Lengths in points of what is drawn and what is left free along a line, in turn.
struct DashPattern {
    double on = 0;
    double off = 0;
};

/// The pattern of a dashed or dotted pen; dots are as long as the line is wide.
inline DashPattern DashesOf(PenStyle style, double width) {
    if (style == PenStyle::Dotted) return {width, 1.25 * width + 0.75};
    return {3 * width + 1.5, 1.5 * width + 1.25};
}

inline bool IsDashed(PenStyle style) {
    return style == PenStyle::Dashed || style == PenStyle::Dotted;
}

/// Calls `draw` with the points of every dash along a chain of points; the span is good until the next call.
/// A chain too long to be looked at dash by dash is drawn whole.
template<class Draw>
void ForEachDash(std::span<const Point> chain, DashPattern pattern, Draw draw) {
    constexpr double GreatestDashCount = 100'000;
    if (chain.size() < 2) return;
    double total = 0;
    for (std::size_t at = 1; at < chain.size(); ++at) {
        total += std::hypot(chain[at].x - chain[at - 1].x, chain[at].y - chain[at - 1].y);
    }
    if (!(total < GreatestDashCount * (pattern.on + pattern.off)) || !(pattern.on > 0) ||
        !(pattern.off > 0)) {
        draw(chain);
        return;
    }
    std::vector<Point> dash{chain[0]};
    bool isOn = true;
    double left = pattern.on;
    for (std::size_t at = 1; at < chain.size(); ++at) {
        const Point from = chain[at - 1];
        const Point to = chain[at];
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        double done = 0;
        while (length - done > left) {
            done += left;
            const Point corner{from.x + (to.x - from.x) * done / length,
                               from.y + (to.y - from.y) * done / length};
            if (isOn) {
                dash.push_back(corner);
                draw(std::span<const Point>(dash));
            }
            isOn = !isOn;
            left = isOn ? pattern.on : pattern.off;
            dash.assign(1, corner);
        }
        left -= length - done;
        if (isOn) dash.push_back(to);
    }
    if (isOn && dash.size() > 1) draw(std::span<const Point>(dash));
}

} // namespace QmChart6

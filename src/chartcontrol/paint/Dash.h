#pragma once

#include "chartcontrol/scene/Scene.h"

#include <array>
#include <cmath>
#include <numeric>
#include <span>
#include <vector>

namespace QmChart6 {

/// Lengths in points of what is drawn and what is left free along a line, in turn: two or four of them.
struct DashPattern {
    std::array<double, 4> lengths{};
    std::size_t count = 0;

    [[nodiscard]] double Total() const { return std::accumulate(lengths.begin(), lengths.end(), 0.0); }
    /// Good as long as the pattern is: not to be asked of a temporary one.
    [[nodiscard]] std::span<const double> Lengths() const& { return {lengths.data(), count}; }
    [[nodiscard]] std::span<const double> Lengths() const&& = delete;
};

/// The pattern of a pen that is not solid; dots are as long as the line is wide.
inline DashPattern DashesOf(PenStyle style, double width) {
    const double gap = 1.5 * width + 1.25;
    switch (style) {
    case PenStyle::Dotted:
        return {{width, 1.25 * width + 0.75}, 2};
    case PenStyle::LongDashed:
        return {{8 * width + 2, gap}, 2};
    case PenStyle::DashDotted:
        return {{5 * width + 1.5, gap, width, gap}, 4};
    case PenStyle::None:
    case PenStyle::Solid:
    case PenStyle::Dashed:
        break;
    }
    return {{3 * width + 1.5, gap}, 2};
}

inline bool IsDashed(PenStyle style) {
    return style != PenStyle::None && style != PenStyle::Solid;
}

/// Calls `draw` with the points of every dash along a chain of points; the span is good until the next call.
/// A chain too long to be looked at dash by dash is drawn whole.
template<class Draw>
void ForEachDash(std::span<const Point> chain, const DashPattern& pattern, Draw draw) {
    constexpr double GreatestDashCount = 100'000;
    if (chain.size() < 2) return;
    double total = 0;
    for (std::size_t at = 1; at < chain.size(); ++at) {
        total += std::hypot(chain[at].x - chain[at - 1].x, chain[at].y - chain[at - 1].y);
    }
    if (!(total < GreatestDashCount * pattern.Total()) || !(pattern.lengths[0] > 0)) {
        draw(chain);
        return;
    }
    std::vector<Point> dash{chain[0]};
    std::size_t turn = 0;
    const auto isOn = [&] { return turn % 2 == 0; };
    double left = pattern.lengths[0];
    for (std::size_t at = 1; at < chain.size(); ++at) {
        const Point from = chain[at - 1];
        const Point to = chain[at];
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        double done = 0;
        while (length - done > left) {
            done += left;
            const Point corner{from.x + (to.x - from.x) * done / length,
                               from.y + (to.y - from.y) * done / length};
            if (isOn()) {
                dash.push_back(corner);
                draw(std::span<const Point>(dash));
            }
            turn = (turn + 1) % pattern.count;
            left = pattern.lengths[turn];
            dash.assign(1, corner);
        }
        left -= length - done;
        if (isOn()) dash.push_back(to);
    }
    if (isOn() && dash.size() > 1) draw(std::span<const Point>(dash));
}

} // namespace QmChart6

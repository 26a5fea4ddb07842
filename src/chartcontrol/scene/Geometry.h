#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

// Lengths are points (1/72 inch), x to the right and y downwards.

struct Point {
    double x = 0;
    double y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    double width = 0;
    double height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

/// left <= right and top <= bottom, but for an empty box that nothing was added to yet.
struct Box {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    /// The box that holds nothing: what is included in it is all it holds.
    [[nodiscard]] static constexpr Box Nothing() {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        return {infinity, infinity, -infinity, -infinity};
    }
    /// The least box that holds the points; Nothing() without any.
    template<class Points>
    [[nodiscard]] static Box Around(const Points& points) {
        Box box = Nothing();
        for (const Point point : points) box.Include(point);
        return box;
    }

    [[nodiscard]] double Width() const { return right - left; }
    [[nodiscard]] double Height() const { return bottom - top; }
    [[nodiscard]] Point Center() const { return {(left + right) / 2, (top + bottom) / 2}; }
    [[nodiscard]] bool Contains(Point point) const {
        return point.x >= left && point.x <= right && point.y >= top && point.y <= bottom;
    }
    /// Whether all of its numbers, and its extent, are finite.
    [[nodiscard]] bool IsFinite() const { return std::isfinite(right - left) && std::isfinite(bottom - top); }
    [[nodiscard]] Box Grown(double by) const { return {left - by, top - by, right + by, bottom + by}; }

    void Include(Point point) {
        left = std::min(left, point.x);
        top = std::min(top, point.y);
        right = std::max(right, point.x);
        bottom = std::max(bottom, point.y);
    }
    void Include(const Box& box) {
        left = std::min(left, box.left);
        top = std::min(top, box.top);
        right = std::max(right, box.right);
        bottom = std::max(bottom, box.bottom);
    }

    friend bool operator==(const Box&, const Box&) = default;
};

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/space/SpacePlan.h"
#include "chartcontrol/layout/text/TextBlock.h"

#include <array>
#include <optional>
#include <vector>

namespace QmChart6 {

/// Where the texts of axes may stand: beside the space, whatever of it is drawn, and clear of each other.
class AxisTextRoom {
public:
    /// Without bounds texts take what room they like, so that it can be measured.
    AxisTextRoom(const SpacePlan& plan, const std::optional<Box>& bounds);

    [[nodiscard]] bool IsClear(const Box& wanted) const { return IsInside(wanted) && IsFree(wanted); }
    /// Within the bounds.
    [[nodiscard]] bool IsInside(const Box& wanted) const;
    /// Beside the space and clear of all that was taken.
    [[nodiscard]] bool IsFree(const Box& wanted) const;
    /// Beside the space.
    [[nodiscard]] bool IsBeside(Point place) const {
        return !MeetsSpace({place.x, place.y, place.x, place.y});
    }
    void Take(const Box& taken) { taken_.push_back(taken); }

    /// A box moved by `step` until it is clear and, where there is so much room, `air` apart from all else;
    /// nothing where no place is within `reach` points.
    [[nodiscard]] std::optional<Box> Push(const Box& wished, Point step, double reach, double air = 0) const;

private:
    [[nodiscard]] bool MeetsSpace(const Box& wanted) const;

    std::optional<Box> bounds_;
    std::array<Point, 8> corners_;
    /// Across the edges of the space, with which its outline on the page is made.
    std::vector<Point> normals_;
    std::vector<Box> taken_;
};

/// Whether two boxes cover common ground.
inline bool Meet(const Box& one, const Box& other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom &&
           other.top < one.bottom;
}

/// A label with the air that keeps it apart from those at its left and right.
inline Box WithAir(const Box& label) {
    constexpr double air = 2.5;
    return {label.left - air, label.top, label.right + air, label.bottom};
}

} // namespace QmChart6

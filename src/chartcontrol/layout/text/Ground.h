#pragma once

#include "chartcontrol/scene/Scene.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace QmChart6 {

/// What lies where in the picture so far, in cells of a point, read off the scene's shapes: which shape is on
/// top, where lines run, where text stands. Labels are placed by it, so that all of each is read.
class Ground {
public:
    /// The shape that stands for the plain ground, where no other lies.
    static constexpr int Plain = -1;

    /// What a box lies on.
    struct Footing {
        /// The box is within the room, and no text is there.
        bool free = true;
        /// All of it is on one plain surface, and no line crosses it.
        bool even = true;
        /// The surface under the most of it: its shape, or Plain, and its colour.
        int shape = Plain;
        Colour colour;
        /// What part of it is on that surface, and what part lines cover.
        double share = 1;
        double lines = 0;
    };

    /// `room` is what labels must not leave; `plain` the colour where no shape is.
    Ground(const Scene& scene, const Box& room, Colour plain);

    [[nodiscard]] Footing Under(const Box& box) const;
    /// From now on text stands there.
    void Take(const Box& box);
    /// Whether a line through these places meets no text, and does not leave the room.
    [[nodiscard]] bool IsFreeWay(std::span<const Point> way) const;
    /// From now on a line runs there.
    void Draw(std::span<const Point> way);
    /// What the shape on top at a place shows; nothing on the plain ground or outside.
    [[nodiscard]] std::optional<Part> PartAt(Point place) const;
    /// What a footing's shape shows.
    [[nodiscard]] std::optional<Part> PartOf(int shape) const;
    [[nodiscard]] Colour PlainColour() const { return surfaces_.front().colour; }
    [[nodiscard]] const Box& Room() const { return room_; }

private:
    /// A cell: the number of its surface, and two flags.
    using Cell = std::uint32_t;
    static constexpr Cell Line = 1;
    static constexpr Cell Text = 2;
    static constexpr int SurfaceShift = 2;

    struct Surface {
        int shape = Plain;
        Colour colour;
        bool patterned = false;
    };
    struct Cells {
        int left = 0;
        int top = 0;
        int right = -1; // included
        int bottom = -1;
    };
    class Reader;

    template<class Visit>
    void ForPlaces(Point from, Point to, Visit visit) const;
    [[nodiscard]] Cells CellsOf(const Box& box) const;
    [[nodiscard]] Cell& At(int column, int row) {
        return cells_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                      static_cast<std::size_t>(column)];
    }
    [[nodiscard]] Cell At(int column, int row) const {
        return cells_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                      static_cast<std::size_t>(column)];
    }

    const Scene* scene_;
    Box room_;
    int columns_ = 1;
    int rows_ = 1;
    std::vector<Cell> cells_;
    std::vector<Surface> surfaces_;
};

} // namespace QmChart6

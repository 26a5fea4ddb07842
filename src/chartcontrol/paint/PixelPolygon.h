#pragma once

#include "chartcontrol/paint/PixelTarget.h"
#include "chartcontrol/scene/Scene.h"

#include <span>
#include <vector>

namespace QmChart6 {

/// Fills and outlines polygons straight in the pixels, antialiased by the area that they cover of each. Every
/// edge adds its signed area to the pixels that it crosses; a sum from the left then tells how much of a
/// pixel lies inside. Parts that overlap themselves in the same direction are filled.
class PixelPolygon {
public:
    explicit PixelPolygon(PixelTarget& target) : target_(target) {}

    /// Whether a shape of these bounds (points) can be drawn so: it lies within the clip and is not too
    /// large.
    [[nodiscard]] bool Takes(const Box& bounds) const;

    /// Opacity from 0 to 1.
    void Fill(std::span<const Point> outline, Colour colour, double opacity = 1);
    /// A straight line with flat ends, its width in points.
    void Line(Point from, Point to, double width, Colour colour);
    /// A line through points, segment by segment; for thin lines, whose joins nobody sees.
    void Chain(std::span<const Point> points, double width, Colour colour);
    /// A closed line along the outline, its width in points.
    void Outline(std::span<const Point> outline, double width, Colour colour);

private:
    struct Place {
        float x = 0;
        float y = 0;
    };
    /// The pixels of a row that edges have touched.
    struct Touched {
        int first = 0;
        int last = -1;
    };

    void Begin(const Box& bounds);
    [[nodiscard]] Place PlaceOf(Point point) const;
    void Edge(Place from, Place to);
    void EdgeInRow(int row, float from, float to, float height);
    void Quad(Place from, Place to, float half, float beyond);
    void Sweep(Colour colour, double opacity = 1);

    PixelTarget& target_;
    int left_ = 0;
    int top_ = 0;
    int width_ = 0;
    int height_ = 0;
    std::vector<float> sums_; // all zero between two shapes
    std::vector<Touched> rows_;
};

} // namespace QmChart6

#pragma once

#include "chartcontrol/paint/PixelTarget.h"
#include "chartcontrol/scene/Scene.h"

#include <span>
#include <vector>

namespace QmChart6 {

/// Whether a line has so many points, from left to right, that it is better drawn column by column.
bool IsDense(std::span<const Point> points, const PixelTarget& target);

/// Draws solid lines column by column of pixels. In each column the line covers what lies between its least
/// and its greatest place there, and half its width beyond; the ends are antialiased. Time goes by points and
/// columns, whatever the width.
class DenseLine {
public:
    explicit DenseLine(PixelTarget& target) : target_(target) {}

    /// `width` in points.
    void Draw(std::span<const Point> points, double width, Colour colour);

private:
    /// What of a column the middle of the line runs through; reversed while it does not enter it.
    struct Reach {
        float top = 1e30F;
        float bottom = -1e30F;

        void Include(float y) {
            top = y < top ? y : top;
            bottom = y > bottom ? y : bottom;
        }
        [[nodiscard]] bool IsEmpty() const { return top > bottom; }
    };

    void Trace(std::span<const Point> points);
    [[nodiscard]] const std::vector<Reach>& Widened(int beside);
    void FillColumns(const std::vector<Reach>& reaches, float half, QRgb colour, float strength);
    void FillColumn(int column, float top, float bottom, QRgb colour, float strength);

    PixelTarget& target_;
    int firstColumn_ = 0;
    std::vector<Reach> reaches_;
    std::vector<Reach> widened_;
};

} // namespace QmChart6

#include "chartcontrol/paint/DenseLine.h"

#include "chartcontrol/paint/QtColour.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// From so many points to a pixel column on.
constexpr double DensePoints = 1.2;
constexpr std::size_t FewestPoints = 200;

} // namespace

bool IsDense(std::span<const Point> points, const PixelTarget& target) {
    if (points.size() < FewestPoints) return false;
    const double columns = (points.back().x - points.front().x) * target.Scale();
    if (!(columns >= 1) || static_cast<double>(points.size()) < DensePoints * columns) return false;
    for (std::size_t i = 1; i < points.size(); ++i)
        if (points[i].x < points[i - 1].x) return false;
    return true;
}

void DenseLine::Draw(std::span<const Point> points, double width, Colour colour) {
    Trace(points);
    const double pixels = std::max(1.0, width * target_.Scale());
    // A wide line covers the columns beside it as far as its half width reaches: whole ones, and then a part
    // of one.
    const double beside = (pixels - 1) / 2;
    const int whole = static_cast<int>(beside + 0.01);
    const double part = beside - whole;
    const auto half = static_cast<float>(pixels / 2);
    const QRgb rgb = RgbOf(colour);
    if (part > 0.02) FillColumns(Widened(whole + 1), half, rgb, static_cast<float>(part));
    FillColumns(Widened(whole), half, rgb, 1);
}

/// Follows the line through the columns: each gets the places of the points in it and those where the line
/// crosses its sides.
void DenseLine::Trace(std::span<const Point> points) {
    firstColumn_ = static_cast<int>(std::floor(target_.DeviceX(points.front().x)));
    const int last = static_cast<int>(std::floor(target_.DeviceX(points.back().x)));
    reaches_.assign(static_cast<std::size_t>(last - firstColumn_) + 1, {});
    double fromX = target_.DeviceX(points.front().x);
    double fromY = target_.DeviceY(points.front().y);
    int column = firstColumn_;
    reaches_[0].Include(static_cast<float>(fromY));
    for (const Point& point : points.subspan(1)) {
        const double toX = target_.DeviceX(point.x);
        const double toY = target_.DeviceY(point.y);
        const int end = static_cast<int>(toX);
        while (column < end && column < last) {
            const double y = fromY + (column + 1 - fromX) * ((toY - fromY) / (toX - fromX));
            reaches_[static_cast<std::size_t>(column - firstColumn_)].Include(static_cast<float>(y));
            ++column;
            reaches_[static_cast<std::size_t>(column - firstColumn_)].Include(static_cast<float>(y));
        }
        reaches_[static_cast<std::size_t>(column - firstColumn_)].Include(static_cast<float>(toY));
        fromX = toX;
        fromY = toY;
    }
}

/// What the line reaches in a column or in so many beside it.
const std::vector<DenseLine::Reach>& DenseLine::Widened(int beside) {
    if (beside < 1) return reaches_;
    const auto count = static_cast<int>(reaches_.size());
    widened_.assign(reaches_.size(), {});
    for (int i = 0; i < count; ++i) {
        Reach& wide = widened_[static_cast<std::size_t>(i)];
        for (int j = std::max(0, i - beside); j <= std::min(count - 1, i + beside); ++j) {
            const Reach& reach = reaches_[static_cast<std::size_t>(j)];
            wide.top = std::min(wide.top, reach.top);
            wide.bottom = std::max(wide.bottom, reach.bottom);
        }
    }
    return widened_;
}

void DenseLine::FillColumns(const std::vector<Reach>& reaches, float half, QRgb colour, float strength) {
    for (std::size_t i = 0; i < reaches.size(); ++i)
        if (!reaches[i].IsEmpty())
            FillColumn(firstColumn_ + static_cast<int>(i), reaches[i].top - half, reaches[i].bottom + half,
                       colour, strength);
}

void DenseLine::FillColumn(int column, float top, float bottom, QRgb colour, float strength) {
    const QRect& clip = target_.Clip();
    if (column < clip.left() || column > clip.right()) return;
    top = std::max(top, static_cast<float>(clip.top()));
    bottom = std::min(bottom, static_cast<float>(clip.bottom() + 1));
    if (!(top < bottom)) return;
    const auto mix = [&](int y, float covered) {
        QRgb& pixel = target_.Line(y)[column];
        pixel = Mixed(pixel, colour, static_cast<unsigned>(covered * strength * 256));
    };
    const int first = static_cast<int>(top);
    const int last = static_cast<int>(bottom);
    if (first == last) {
        mix(first, bottom - top);
        return;
    }
    mix(first, static_cast<float>(first + 1) - top);
    if (strength < 1)
        for (int y = first + 1; y < last; ++y) mix(y, 1);
    else
        for (int y = first + 1; y < last; ++y) target_.Line(y)[column] = colour;
    if (bottom > static_cast<float>(last)) mix(last, bottom - static_cast<float>(last));
}

} // namespace QmChart6

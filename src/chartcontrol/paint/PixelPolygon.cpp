#include "chartcontrol/paint/PixelPolygon.h"

#include "chartcontrol/paint/QtColour.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace QmChart6 {

namespace {

/// Larger shapes take more memory than their speed is worth. Pixels.
constexpr double LargestArea = 1e6;
/// An edge may touch one pixel beyond the bounds.
constexpr int Rim = 2;
/// What a whole pixel counts; a little more than 256, so that sums that miss the whole by rounding are whole.
constexpr float FullCoverage = 256.4F;

} // namespace

bool PixelPolygon::Takes(const Box& bounds) const {
    const double left = target_.DeviceX(bounds.left);
    const double top = target_.DeviceY(bounds.top);
    const double right = target_.DeviceX(bounds.right);
    const double bottom = target_.DeviceY(bounds.bottom);
    const QRect& clip = target_.Clip();
    return left >= clip.left() && top >= clip.top() && right <= clip.right() + 1 &&
           bottom <= clip.bottom() + 1 && (right - left + Rim) * (bottom - top + Rim) <= LargestArea;
}

void PixelPolygon::Fill(std::span<const Point> outline, Colour colour, double opacity) {
    if (outline.size() < 3) return;
    Begin(Box::Around(outline));
    Place before = PlaceOf(outline.back());
    for (const Point& point : outline) {
        const Place place = PlaceOf(point);
        Edge(before, place);
        before = place;
    }
    Sweep(colour, opacity);
}

void PixelPolygon::Line(Point from, Point to, double width, Colour colour) {
    Chain(std::array{from, to}, width, colour);
}

void PixelPolygon::Chain(std::span<const Point> points, double width, Colour colour) {
    const auto half = static_cast<float>(width * target_.Scale() / 2);
    for (std::size_t i = 1; i < points.size(); ++i) {
        // At a join segments meet half way round the corner; at the ends of the chain they are flat.
        const bool inner = points.size() > 2;
        Begin(Box::Around(std::array{points[i - 1], points[i]}).Grown(width));
        Quad(PlaceOf(points[i - 1]), PlaceOf(points[i]), half, inner ? half / 2 : 0);
        Sweep(colour);
    }
}

/// Edge by edge: each touches few pixels, while the outline as a whole reaches across its inside.
void PixelPolygon::Outline(std::span<const Point> outline, double width, Colour colour) {
    if (outline.empty()) return;
    const auto half = static_cast<float>(width * target_.Scale() / 2);
    Point before = outline.back();
    for (const Point& point : outline) {
        Begin(Box::Around(std::array{before, point}).Grown(width));
        Quad(PlaceOf(before), PlaceOf(point), half, half);
        Sweep(colour);
        before = point;
    }
}

void PixelPolygon::Begin(const Box& bounds) {
    const QRect& clip = target_.Clip();
    left_ = std::max(clip.left(), static_cast<int>(std::floor(target_.DeviceX(bounds.left))));
    top_ = std::max(clip.top(), static_cast<int>(std::floor(target_.DeviceY(bounds.top))));
    width_ =
        std::min(clip.right() + 1, static_cast<int>(std::ceil(target_.DeviceX(bounds.right)))) - left_ + Rim;
    height_ = std::min(clip.bottom() + 1, static_cast<int>(std::ceil(target_.DeviceY(bounds.bottom)))) - top_;
    height_ = std::max(0, height_);
    width_ = std::max(Rim, width_);
    const auto pixels = static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_);
    if (sums_.size() < pixels) sums_.resize(pixels, 0);
    rows_.assign(static_cast<std::size_t>(height_), Touched{width_, -1});
}

PixelPolygon::Place PixelPolygon::PlaceOf(Point point) const {
    return {
        std::clamp(static_cast<float>(target_.DeviceX(point.x) - left_), 0.0F,
                   static_cast<float>(width_ - Rim)),
        std::clamp(static_cast<float>(target_.DeviceY(point.y) - top_), 0.0F, static_cast<float>(height_))};
}

void PixelPolygon::Edge(Place from, Place to) {
    if (from.y == to.y) return;
    const float direction = from.y < to.y ? 1.0F : -1.0F;
    if (from.y > to.y) std::swap(from, to);
    const float slope = (to.x - from.x) / (to.y - from.y);
    float x = from.x;
    const int last = std::min(height_, static_cast<int>(std::ceil(to.y)));
    for (int row = static_cast<int>(from.y); row < last; ++row) {
        const float height =
            std::min(static_cast<float>(row + 1), to.y) - std::max(static_cast<float>(row), from.y);
        const float next = x + slope * height;
        EdgeInRow(row, x, next, height * direction);
        x = next;
    }
}

/// Spreads the area to the right of a piece of an edge over the pixels of its row.
void PixelPolygon::EdgeInRow(int row, float from, float to, float height) {
    const auto most = static_cast<float>(width_ - Rim);
    const float low = std::clamp(std::min(from, to), 0.0F, most);
    const float high = std::clamp(std::max(from, to), 0.0F, most);
    const int first = static_cast<int>(low);
    const int end = static_cast<int>(std::ceil(high));
    float* sums = sums_.data() + static_cast<std::ptrdiff_t>(row) * width_;
    Touched& touched = rows_[static_cast<std::size_t>(row)];
    touched.first = std::min(touched.first, first);
    touched.last = std::max(touched.last, std::max(end, first + 1));
    if (end <= first + 1) {
        const float within = (low + high) / 2 - static_cast<float>(first);
        sums[first] += height * (1 - within);
        sums[first + 1] += height * within;
        return;
    }
    // The edge crosses several pixels: a triangle in the first and the last, trapezia between.
    const float each = height / (high - low);
    const float start = 1 - (low - static_cast<float>(first));
    const float rest = high - static_cast<float>(end - 1);
    const float firstArea = each * start * start / 2;
    const float lastArea = each * rest * rest / 2;
    float before = firstArea;
    float reached = firstArea;
    sums[first] += firstArea;
    for (int pixel = first + 1; pixel < end - 1; ++pixel) {
        const float covered = each * (start + static_cast<float>(pixel - first - 1) + 0.5F);
        sums[pixel] += covered - before;
        reached += covered - before;
        before = covered;
    }
    sums[end - 1] += height - lastArea - reached;
    sums[end] += lastArea;
}

/// A line as a face: `half` to each side, and so much beyond each end.
void PixelPolygon::Quad(Place from, Place to, float half, float beyond) {
    const float length = std::hypot(to.x - from.x, to.y - from.y);
    if (!(length > 0)) return;
    const float alongX = (to.x - from.x) / length;
    const float alongY = (to.y - from.y) / length;
    const auto most = static_cast<float>(width_ - Rim);
    const auto lowest = static_cast<float>(height_);
    const auto place = [&](const Place& at, float along, float across) {
        const float x = at.x + along * beyond * alongX - across * half * alongY;
        const float y = at.y + along * beyond * alongY + across * half * alongX;
        return Place{std::clamp(x, 0.0F, most), std::clamp(y, 0.0F, lowest)};
    };
    // Always in the same direction, so that neighbours add up where they overlap.
    const Place corners[] = {place(from, -1, -1), place(to, 1, -1), place(to, 1, 1), place(from, -1, 1)};
    Edge(corners[0], corners[1]);
    Edge(corners[1], corners[2]);
    Edge(corners[2], corners[3]);
    Edge(corners[3], corners[0]);
}

void PixelPolygon::Sweep(Colour colour, double opacity) {
    const float full = FullCoverage * static_cast<float>(opacity);
    const QRgb rgb = RgbOf(colour);
    for (int row = 0; row < height_; ++row) {
        const Touched& touched = rows_[static_cast<std::size_t>(row)];
        float* sums = sums_.data() + static_cast<std::ptrdiff_t>(row) * width_;
        QRgb* line = target_.Line(top_ + row) + left_;
        float sum = 0;
        for (int pixel = touched.first; pixel <= touched.last; ++pixel) {
            sum += sums[pixel];
            sums[pixel] = 0;
            const auto coverage = static_cast<unsigned>(std::min(1.0F, std::abs(sum)) * full);
            if (coverage >= 256)
                line[pixel] = rgb;
            else if (coverage > 0)
                line[pixel] = Mixed(line[pixel], rgb, coverage);
        }
    }
}

} // namespace QmChart6

#pragma once

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace QmChart6 {

/// One direction of a painter's way to device pixels: device = painter * scale + offset. Snapping moves a
/// painter coordinate onto the pixel grid and gives it back in painter units.
class PixelAxis {
public:
    PixelAxis(double scale, double offset) : scale_(scale), offset_(offset) {}

    [[nodiscard]] double Edge(double at) const { return ToPainter(Rounded(ToDevice(at))); }
    /// The middle of a line as many whole pixels wide: on an edge for an even count, within a pixel for an
    /// odd one.
    [[nodiscard]] double Middle(double at, int pixels) const {
        return pixels % 2 == 0 ? Edge(at) : ToPainter(std::floor(ToDevice(at) + Nudge) + 0.5);
    }
    /// Whole pixels of a length, at least one.
    [[nodiscard]] int Pixels(double length) const {
        return std::max(1, static_cast<int>(Rounded(length * scale_)));
    }
    [[nodiscard]] double Length(int pixels) const { return pixels / scale_; }

private:
    // Coordinates that are meant to be half a pixel come with either sign of rounding error; all of them go
    // one way.
    static constexpr double Nudge = 1e-6;

    [[nodiscard]] double ToDevice(double at) const { return at * scale_ + offset_; }
    [[nodiscard]] double ToPainter(double at) const { return (at - offset_) / scale_; }
    static double Rounded(double at) { return std::floor(at + 0.5 + Nudge); }

    double scale_;
    double offset_;
};

/// The pixels behind a painter. A turned or mirrored painter has no grid that is worth snapping to.
struct DeviceGrid {
    PixelAxis x;
    PixelAxis y;
    bool usable;

    explicit DeviceGrid(const QTransform& toDevice)
        : x(toDevice.m11(), toDevice.dx()), y(toDevice.m22(), toDevice.dy()),
          usable(toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0 && toDevice.m22() > 0) {}
};

} // namespace QmChart6

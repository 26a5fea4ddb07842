#pragma once

namespace QmChart6 {

/// Maps values linearly onto a stretch of the picture: low to `from`, high to `to`. low and high differ.
struct LinearMap {
    double low = 0;
    double high = 1;
    double from = 0;
    double to = 1;

    /// Points to a unit of value.
    [[nodiscard]] double Factor() const { return (to - from) / (high - low); }
    [[nodiscard]] double At(double value) const { return from + (value - low) * Factor(); }
};

} // namespace QmChart6

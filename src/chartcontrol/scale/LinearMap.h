#pragma once

namespace QmChart6 {

/// Maps values linearly onto a stretch of the picture: low to `from`, high to `to`. low and high differ.
struct LinearMap {
    double low = 0;
    double high = 1;
    double from = 0;
    double to = 1;

    [[nodiscard]] double At(double value) const {
        return from + (value - low) * ((to - from) / (high - low));
    }
};

} // namespace QmChart6

#pragma once

#include <limits>

namespace QmChart6 {

/// The least and greatest of the values it was given; empty before the first.
struct ValueRange {
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    [[nodiscard]] bool IsEmpty() const { return low > high; }
    /// Not-a-number is passed over.
    void Include(double value) {
        low = value < low ? value : low;
        high = value > high ? value : high;
    }
    void Include(const ValueRange& other) {
        if (other.low < low) low = other.low;
        if (other.high > high) high = other.high;
    }
};

} // namespace QmChart6

#pragma once

#include <vector>

namespace QmChart6 {

/// A logarithmic axis from low to high, above zero, and its ticks: ascending, at least two, and within.
struct LogarithmicTicks {
    double low = 1;
    double high = 10;
    std::vector<double> values;
};

/// The axis that encloses a range of values above zero. It ends at powers of ten and has its ticks there;
/// over many decades at every second, third and so on of them; over few at 1, 2 and 5 of each; and within
/// half a decade at even steps. There are no more than `count` ticks (from 2) where that can be. A range
/// without extent is widened.
LogarithmicTicks ChooseLogarithmicTicks(double low, double high, int count);

/// The axis that ends at low and high, above zero and low the lower.
LogarithmicTicks LogarithmicTicksWithin(double low, double high, int count);

} // namespace QmChart6

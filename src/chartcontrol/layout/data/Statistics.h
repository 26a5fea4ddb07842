#pragma once

namespace QmChart6 {

/// Running statistics of points: extremes, mean, sample standard deviation (n - 1), and the line of least
/// squares of y on x. Updated by Welford's method, which keeps its digits when values are large against their
/// spread, and in units in which no square of a value is beyond the largest double.
class Statistics {
public:
    void Add(double x, double y);

    [[nodiscard]] int Count() const { return count_; }
    // All of these need at least one point; StandardDeviation two.
    [[nodiscard]] double Minimum() const { return minimum_; }
    [[nodiscard]] double Maximum() const { return maximum_; }
    [[nodiscard]] double Mean() const;
    /// Infinite where it is beyond the largest double.
    [[nodiscard]] double StandardDeviation() const;
    [[nodiscard]] double FirstX() const { return firstX_; }
    [[nodiscard]] double LastX() const { return lastX_; }
    /// Whether the x differ, so that a line can be fitted.
    [[nodiscard]] bool HasSlope() const { return squaresX_ > 0; }
    /// The fitted line's y at an x.
    [[nodiscard]] double Fitted(double x) const;

private:
    void ShrinkX();
    void ShrinkY();

    int count_ = 0;
    double minimum_ = 0;
    double maximum_ = 0;
    double firstX_ = 0;
    double lastX_ = 0;
    // Values times their unit, a power of two.
    double unitX_ = 1;
    double unitY_ = 1;
    double meanX_ = 0;
    double meanY_ = 0;
    double squaresX_ = 0;
    double squaresY_ = 0;
    double products_ = 0;
};

} // namespace QmChart6

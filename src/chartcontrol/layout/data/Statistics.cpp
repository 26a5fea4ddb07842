#include "chartcontrol/layout/data/Statistics.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

/// From here on a value is kept in small units: its square, times their number, is a double then.
constexpr double LargestUnshrunk = 0x1p400;
constexpr double SmallUnit = 0x1p-700;

} // namespace

void Statistics::ShrinkX() {
    unitX_ = SmallUnit;
    meanX_ *= SmallUnit;
    squaresX_ = squaresX_ * SmallUnit * SmallUnit;
    products_ *= SmallUnit;
}

void Statistics::ShrinkY() {
    unitY_ = SmallUnit;
    meanY_ *= SmallUnit;
    squaresY_ = squaresY_ * SmallUnit * SmallUnit;
    products_ *= SmallUnit;
}

void Statistics::Add(double x, double y) {
    minimum_ = count_ == 0 ? y : std::min(minimum_, y);
    maximum_ = count_ == 0 ? y : std::max(maximum_, y);
    firstX_ = count_ == 0 ? x : std::min(firstX_, x);
    lastX_ = count_ == 0 ? x : std::max(lastX_, x);
    ++count_;
    if (std::abs(x) > LargestUnshrunk && unitX_ == 1) ShrinkX();
    if (std::abs(y) > LargestUnshrunk && unitY_ == 1) ShrinkY();
    x *= unitX_;
    y *= unitY_;
    const double awayX = x - meanX_;
    const double awayY = y - meanY_;
    meanX_ += awayX / count_;
    meanY_ += awayY / count_;
    squaresX_ += awayX * (x - meanX_);
    squaresY_ += awayY * (y - meanY_);
    products_ += awayX * (y - meanY_);
}

double Statistics::Mean() const {
    return std::clamp(meanY_ / unitY_, minimum_, maximum_);
}

double Statistics::StandardDeviation() const {
    return std::sqrt(squaresY_ / (count_ - 1)) / unitY_;
}

double Statistics::Fitted(double x) const {
    const double fitted = (meanY_ + (products_ / squaresX_) * (x * unitX_ - meanX_)) / unitY_;
    return std::clamp(fitted, std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
}

} // namespace QmChart6

#include "chartcontrol/layout/data/Statistics.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

void Statistics::Add(double x, double y) {
    minimum_ = count_ == 0 ? y : std::min(minimum_, y);
    maximum_ = count_ == 0 ? y : std::max(maximum_, y);
    firstX_ = count_ == 0 ? x : std::min(firstX_, x);
    lastX_ = count_ == 0 ? x : std::max(lastX_, x);
    ++count_;
    const double awayX = x - meanX_;
    const double awayY = y - meanY_;
    meanX_ += awayX / count_;
    meanY_ += awayY / count_;
    squaresX_ += awayX * (x - meanX_);
    squaresY_ += awayY * (y - meanY_);
    products_ += awayX * (y - meanY_);
}

double Statistics::StandardDeviation() const {
    return std::sqrt(squaresY_ / (count_ - 1));
}

} // namespace QmChart6

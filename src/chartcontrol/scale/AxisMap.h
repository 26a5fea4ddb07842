#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

/// Maps values onto a stretch of the picture, linearly or by their logarithms: low to `from`, high to `to`.
/// low and high differ; on a logarithmic map both are above zero. No place is farther than Farthest from
/// either end, however far from the axis its value is.
class AxisMap {
public:
    /// Places, in points: farther than any picture reaches, near enough to be reckoned with.
    static constexpr double Farthest = 1e7;

    AxisMap() : AxisMap(0, 1, 0, 1) {}
    AxisMap(double low, double high, double from, double to, bool logarithmic = false)
        : low_(low), high_(high), from_(from) {
        if (logarithmic) {
            kind_ = Kind::Logarithmic;
            start_ = std::log10(low);
            factor_ = (to - from) / (std::log10(high) - start_);
        } else if (std::isfinite(high - low)) {
            start_ = low;
            factor_ = (to - from) / (high - low);
        } else {
            kind_ = Kind::Vast;
            start_ = low / 2;
            factor_ = (to - from) / (high / 2 - start_);
        }
    }

    [[nodiscard]] double Low() const { return low_; }
    [[nodiscard]] double High() const { return high_; }
    [[nodiscard]] bool IsLogarithmic() const { return kind_ == Kind::Logarithmic; }

    /// Where a value is; not-a-number for one that is missing, and on a logarithmic map for those that are
    /// not above zero.
    [[nodiscard]] double At(double value) const { return std::clamp(Along(value), -Farthest, Farthest); }
    /// Where a mark stands that starts at a level: on a logarithmic map, what starts at zero stands on the
    /// lower end.
    [[nodiscard]] double StandAt(double level) const {
        return IsLogarithmic() && !(level > 0) ? from_ : At(level);
    }
    /// Where bars and areas stand: at zero, or at the end of the axis that is nearest to it.
    [[nodiscard]] double Base() const {
        if (IsLogarithmic()) return from_;
        return At(low_ > 0 ? low_ : high_ < 0 ? high_ : 0);
    }
    /// The value at a place between the ends.
    [[nodiscard]] double ValueAt(double place) const {
        const double along = start_ + (place - from_) / factor_;
        if (kind_ == Kind::Vast) return along * 2;
        return IsLogarithmic() ? std::pow(10.0, along) : along;
    }

    /// A map of loops over a great many values: from + (value - start) * factor, which is At but for values
    /// far outside the axis.
    struct Line {
        double start;
        double factor;
        double from;

        [[nodiscard]] double At(double value) const { return from + (value - start) * factor; }
    };
    /// Whether the map is such a line.
    [[nodiscard]] bool IsLine() const { return kind_ == Kind::Linear; }
    [[nodiscard]] Line AsLine() const { return {start_, factor_, from_}; }

private:
    /// Vast: linear, but high - low is no finite number.
    enum class Kind { Linear, Vast, Logarithmic };

    [[nodiscard]] double Along(double value) const {
        switch (kind_) {
        case Kind::Linear:
            return from_ + (value - start_) * factor_;
        case Kind::Vast:
            return from_ + (value / 2 - start_) * factor_;
        case Kind::Logarithmic:
            break;
        }
        return value > 0 ? from_ + (std::log10(value) - start_) * factor_
                         : std::numeric_limits<double>::quiet_NaN();
    }

    double low_;
    double high_;
    double from_;
    Kind kind_ = Kind::Linear;
    // Of the low end, as values are mapped: the value, half of it, or its logarithm.
    double start_ = 0;
    double factor_ = 1;
};

} // namespace QmChart6

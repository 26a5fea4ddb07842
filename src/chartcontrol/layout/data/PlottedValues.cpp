#include "chartcontrol/layout/data/PlottedValues.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/data/Sums.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

/// What the shares of a percent scale are shares of, by the basis: the largest or the sum of absolute values,
/// in SumUnit.
class Bases {
public:
    Bases(const Chart& chart, int series, int categories)
        : rows_(static_cast<std::size_t>(categories)), columns_(static_cast<std::size_t>(series)) {
        for (int number = 1; number <= series; ++number) {
            const Values values = chart.SeriesValues(number);
            for (int category = 0; category < categories; ++category)
                if (!std::isnan(values[category]))
                    Add(number, category, std::abs(values[category]) * SumUnit);
        }
    }

    [[nodiscard]] double Of(PercentBasis basis, int number, int category) const {
        const Basis& row = rows_[static_cast<std::size_t>(category)];
        const Basis& column = columns_[static_cast<std::size_t>(number) - 1];
        switch (basis) {
        case PercentBasis::MaximumOfChart:
            return all_.largest;
        case PercentBasis::MaximumOfRow:
            return row.largest;
        case PercentBasis::MaximumOfColumn:
            return column.largest;
        case PercentBasis::SumOfChart:
            return all_.sum;
        case PercentBasis::SumOfRow:
            return row.sum;
        case PercentBasis::SumOfColumn:
            return column.sum;
        }
        return all_.largest;
    }

private:
    struct Basis {
        double largest = 0;
        double sum = 0;

        void Add(double size) {
            largest = std::max(largest, size);
            sum += size;
        }
    };

    void Add(int number, int category, double size) {
        rows_[static_cast<std::size_t>(category)].Add(size);
        columns_[static_cast<std::size_t>(number) - 1].Add(size);
        all_.Add(size);
    }

    std::vector<Basis> rows_;
    std::vector<Basis> columns_;
    Basis all_;
};

AxisId AxisOf(const Series& series) {
    return series.SecondaryAxis ? AxisId::SecondaryY : AxisId::Y;
}

/// Sums of shares that miss the whole by rounding are the whole.
double Whole(double share) {
    return std::abs(std::abs(share) - 1) < 1e-9 ? std::copysign(1.0, share) : share;
}

} // namespace

PlottedValues::PlottedValues(const Chart& chart)
    : grid_(chart.DataGrid), inRows_(chart.Plot.DataSeriesInRow), categories_(chart.CategoryCount()) {
    bool shares = false;
    for (int number = 1; number <= chart.Plot.SeriesCollection.Count(); ++number) {
        const Series& series = chart.Plot.SeriesCollection(number);
        const ScaleType scale = chart.Plot.Axis(AxisOf(series)).AxisScale.Type;
        series_.push_back({MarkOfSeries(chart, number), QmChart6::IsDrawn(chart, number),
                           series.SecondaryAxis, scale == ScaleType::Percent,
                           scale == ScaleType::Logarithmic});
        shares = shares || scale == ScaleType::Percent;
    }
    if (!KindOf(chart.chartType()).stacks) return;
    stacked_ = chart.Stacking;
    changed_ = shares || stacked_;
    if (!changed_ && !HoldsWithoutPlace()) return;
    CopyGrid();
    if (shares) ToShares(chart);
    LeaveOutWithoutPlace();
    if (stacked_) Stack();
}

/// Whether any value on a logarithmic axis is not above zero.
bool PlottedValues::HoldsWithoutPlace() const {
    for (int number = 1; number <= SeriesCount(); ++number) {
        if (!Of(number).logarithmic) continue;
        const Values values = OfGrid(number);
        if (values.whole != nullptr && values.whole->low > 0) continue;
        for (int category = 0; category < values.count; ++category)
            if (values[category] <= 0) return true;
    }
    return false;
}

void PlottedValues::CopyGrid() {
    tops_.resize(series_.size() * static_cast<std::size_t>(categories_));
    for (int number = 1; number <= SeriesCount(); ++number) {
        const Values values = OfGrid(number);
        for (int category = 0; category < categories_; ++category)
            At(tops_, number, category) = values[category];
    }
}

void PlottedValues::LeaveOutWithoutPlace() {
    for (int number = 1; number <= SeriesCount(); ++number) {
        if (!Of(number).logarithmic) continue;
        for (int category = 0; category < categories_; ++category) {
            double& value = At(tops_, number, category);
            if (!(value <= 0)) continue;
            value = std::numeric_limits<double>::quiet_NaN();
            ++withoutPlace_;
        }
    }
}

Values PlottedValues::OfGrid(int series) const {
    return inRows_ ? grid_.Row(series) : grid_.ColumnWithBlocks(series);
}

Values PlottedValues::Top(int series) const {
    if (tops_.empty()) return OfGrid(series);
    return {tops_.data() + static_cast<std::ptrdiff_t>(series - 1) * categories_, 1, categories_, nullptr,
            nullptr};
}

Values PlottedValues::Base(int series) const {
    if (bases_.empty()) return {};
    return {bases_.data() + static_cast<std::ptrdiff_t>(series - 1) * categories_, 1, categories_, nullptr,
            nullptr};
}

double& PlottedValues::At(std::vector<double>& table, int series, int category) const {
    return table[static_cast<std::size_t>(series - 1) * static_cast<std::size_t>(categories_) +
                 static_cast<std::size_t>(category)];
}

void PlottedValues::ToShares(const Chart& chart) {
    const Bases bases(chart, SeriesCount(), categories_);
    for (int number = 1; number <= SeriesCount(); ++number) {
        if (!IsShare(number)) continue;
        const AxisId axis = IsSecondary(number) ? AxisId::SecondaryY : AxisId::Y;
        const PercentBasis basis = chart.Plot.Axis(axis).AxisScale.PercentBasis;
        for (int category = 0; category < categories_; ++category) {
            double& value = At(tops_, number, category);
            const double whole = bases.Of(basis, number, category);
            if (whole > 0) value = Whole(value * SumUnit / whole);
        }
    }
}

void PlottedValues::Stack() {
    // Series pile up by axis and by kind of mark; what is negative piles up downwards.
    constexpr std::size_t axes = 2;
    struct Pile {
        double up = 0;
        double down = 0;
    };
    bases_.resize(tops_.size());
    for (int category = 0; category < categories_; ++category) {
        std::array<Pile, MarkKinds.size() * axes> piles{};
        for (int number = 1; number <= SeriesCount(); ++number) {
            const Drawn& drawn = Of(number);
            Pile& pile = piles[static_cast<std::size_t>(drawn.mark) * axes + (drawn.secondary ? 1 : 0)];
            double& top = At(tops_, number, category);
            const double value = top;
            double& level = value < 0 ? pile.down : pile.up;
            At(bases_, number, category) = level;
            if (std::isnan(value)) continue;
            // A sum beyond the largest double is as high as that.
            level = std::clamp(level + value, std::numeric_limits<double>::lowest(),
                               std::numeric_limits<double>::max());
            top = drawn.share ? Whole(level) : level;
        }
    }
}

} // namespace QmChart6

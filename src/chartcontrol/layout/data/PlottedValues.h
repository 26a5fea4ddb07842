#pragma once

#include "chartcontrol/model/Chart.h"

#include <vector>

namespace QmChart6 {

/// The values of every series as they are drawn: as they stand in the grid, as shares (percent scale), and
/// piled on each other (stacking). Made once for a layout.
class PlottedValues {
public:
    explicit PlottedValues(const Chart& chart);

    /// Where a series reaches, by category; not-a-number where its value is missing.
    [[nodiscard]] Values Top(int series) const;
    /// Where a piled series starts, by category; `first` is null when the series starts at the axis.
    [[nodiscard]] Values Base(int series) const;
    /// Whether the series is piled on others: in a stacked chart, all but pies and XY series are.
    [[nodiscard]] bool IsStacked() const { return stacked_; }
    [[nodiscard]] bool IsChanged() const { return !tops_.empty(); }
    /// Whether the series stands on an axis of shares.
    [[nodiscard]] bool IsShare(int series) const;

private:
    void ToShares();
    void Stack();
    [[nodiscard]] double& At(std::vector<double>& table, int series, int category) const;

    const Chart& chart_;
    bool stacked_ = false;
    int series_ = 0;
    int categories_ = 0;
    std::vector<double> tops_;
    std::vector<double> bases_;
};

} // namespace QmChart6

#pragma once

#include "chartcontrol/model/Chart.h"
#include "chartcontrol/model/ChartKinds.h"

#include <vector>

namespace QmChart6 {

/// The values of every series as they are drawn: as they stand in the grid, as shares (percent scale), and
/// piled on each other (stacking). Made once for a layout; it shares the grid's table and needs the chart no
/// more.
class PlottedValues {
public:
    PlottedValues() = default;
    explicit PlottedValues(const Chart& chart);

    [[nodiscard]] int SeriesCount() const { return static_cast<int>(series_.size()); }
    [[nodiscard]] int CategoryCount() const { return categories_; }
    /// Where a series reaches, by category; not-a-number where its value is missing.
    [[nodiscard]] Values Top(int series) const;
    /// Where a piled series starts, by category; `first` is null when the series starts at the axis.
    [[nodiscard]] Values Base(int series) const;
    /// Whether the series is piled on others: in a stacked chart of a kind that stacks.
    [[nodiscard]] bool IsStacked() const { return stacked_; }
    /// Whether values are drawn as shares or in piles: their places are not their own.
    [[nodiscard]] bool IsChanged() const { return changed_; }
    /// How many values have no place: those not above zero on a logarithmic axis. They are missing here.
    [[nodiscard]] int WithoutPlace() const { return withoutPlace_; }
    /// Whether the series stands on an axis of shares.
    [[nodiscard]] bool IsShare(int series) const { return Of(series).share; }
    /// Whether it is drawn by itself: see IsDrawn of a chart.
    [[nodiscard]] bool IsDrawn(int series) const { return Of(series).drawn; }
    /// Whether it stands on the secondary axis.
    [[nodiscard]] bool IsSecondary(int series) const { return Of(series).secondary; }
    /// What it is drawn with.
    [[nodiscard]] Mark MarkOf(int series) const { return Of(series).mark; }

private:
    struct Drawn {
        Mark mark = Mark::Bar;
        bool drawn = true;
        bool secondary = false;
        bool share = false;
        bool logarithmic = false;
    };

    [[nodiscard]] const Drawn& Of(int series) const { return series_[static_cast<std::size_t>(series) - 1]; }
    [[nodiscard]] Values OfGrid(int series) const;
    [[nodiscard]] bool HoldsWithoutPlace() const;
    void CopyGrid();
    void LeaveOutWithoutPlace();
    void ToShares(const Chart& chart);
    void Stack();
    [[nodiscard]] double& At(std::vector<double>& table, int series, int category) const;

    DataGrid grid_;
    bool inRows_ = false;
    bool stacked_ = false;
    bool changed_ = false;
    int withoutPlace_ = 0;
    std::vector<Drawn> series_;
    int categories_ = 0;
    std::vector<double> tops_;
    std::vector<double> bases_;
};

} // namespace QmChart6

#pragma once

#include "chartcontrol/model/Chart.h"

#include <cmath>

namespace QmChart6 {

/// The points of a drawn series of an XY chart: x from the series' own values, y from the next series'. An
/// unpaired last series is y over the numbers 1, 2, 3 and so on.
class XYPairs {
public:
    XYPairs(const Chart& chart, int series)
        : XYPairs(chart.SeriesValues(series),
                  series < chart.Plot.SeriesCollection.Count() ? chart.SeriesValues(series + 1) : Values{}) {}
    /// `next` without values where the series is unpaired.
    XYPairs(const Values& own, const Values& next)
        : own_(own), paired_(next.first != nullptr), next_(paired_ ? next : own) {}

    [[nodiscard]] int Count() const { return own_.count; }
    [[nodiscard]] double X(int index) const { return paired_ ? own_[index] : index + 1; }
    [[nodiscard]] double Y(int index) const { return next_[index]; }
    /// Neither of the two is missing.
    [[nodiscard]] bool Has(int index) const { return !std::isnan(X(index)) && !std::isnan(Y(index)); }

private:
    Values own_;
    bool paired_;
    Values next_;
};

} // namespace QmChart6

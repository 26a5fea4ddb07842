#pragma once

#include "chartcontrol/layout/PlotArea.h"
#include "chartcontrol/model/DataGrid.h"

#include <vector>

namespace QmChart6 {

/// A point of a series: its category, from 0, and its value.
struct Sample {
    int category = 0;
    double value = 0;
};

/// The samples of one series in unbroken runs: a missing value ends a run.
struct Runs {
    std::vector<Sample> samples;
    /// Where each run starts in `samples`, and at last their number.
    std::vector<std::size_t> starts;

    [[nodiscard]] std::size_t Count() const { return starts.size() - 1; }
};

/// The samples of a series. Where several fall into one device pixel column, only those that the picture
/// needs are kept: the first, the least, the greatest and the last of the column. Gaps narrower than a column
/// may be closed. `runs` is filled anew; its memory is used again.
void CollectRuns(const Values& values, const PlotArea& area, Runs& runs);

} // namespace QmChart6

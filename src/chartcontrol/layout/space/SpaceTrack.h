#pragma once

#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/scene/Geometry.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace QmChart6 {

/// The places of one series in its row: y in space by column, not-a-number where its value is missing.
struct SpaceTrack {
    int series = 0;
    Mark mark = Mark::Bar;
    /// By column: which category is drawn, from 0, and where its mark reaches from and to.
    std::vector<int> category;
    std::vector<double> top;
    std::vector<double> base;
    /// The middle of a bar as it is seen.
    std::vector<Point> middle;

    [[nodiscard]] bool Has(std::size_t column) const { return !std::isnan(top[column]); }
    /// Whether the neighbours' values are missing.
    [[nodiscard]] bool IsAlone(std::size_t column) const {
        const bool before = column > 0 && Has(column - 1);
        const bool after = column + 1 < top.size() && Has(column + 1);
        return Has(column) && !before && !after;
    }
    /// Whether a stretch runs from the column to the next.
    [[nodiscard]] bool RunsOn(std::size_t column) const {
        return column + 1 < top.size() && Has(column) && Has(column + 1);
    }
    [[nodiscard]] double Height(std::size_t column) const {
        return Has(column) ? top[column] - base[column] : 0;
    }
};

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/space/SpacePlan.h"
#include "chartcontrol/layout/space/SpaceTrack.h"

namespace QmChart6 {

/// A row of a 3D plot, by its index from the front: where its marks stand in space, and what they look like.
struct SpaceRow {
    const LayoutContext& context;
    const SpacePlan& plan;
    int index = 0;

    [[nodiscard]] double Z() const { return plan.rows[static_cast<std::size_t>(index)]; }
    /// How far marks reach to the front and the back that fill a part of the row's depth.
    [[nodiscard]] double Front(double share) const { return Z() - share * plan.rowDepth / 2; }
    [[nodiscard]] double Back(double share) const { return Z() + share * plan.rowDepth / 2; }
    [[nodiscard]] double X(std::size_t column) const { return plan.columns[column]; }
    [[nodiscard]] std::size_t Last() const { return plan.columns.size() - 1; }

    [[nodiscard]] const Brush& BrushOf(const SpaceTrack& track, std::size_t column) const {
        return context.chart.Plot.SeriesCollection(track.series)
            .DataPoints.Item(track.category[column] + 1)
            .Brush;
    }
    [[nodiscard]] const Brush& BrushOf(int series) const {
        return context.chart.Plot.SeriesCollection(series).DataPoints.Item(DataPoints::All).Brush;
    }
    [[nodiscard]] static Part PartOf(const SpaceTrack& track, std::size_t column) {
        return {PartCode::Series, track.series, track.category[column] + 1};
    }
    /// The stretches between neighbouring columns, from the farthest to the nearest.
    [[nodiscard]] std::vector<int> Stretches() const {
        std::vector<double> middles;
        for (std::size_t column = 0; column < Last(); ++column)
            middles.push_back((X(column) + X(column + 1)) / 2);
        return plan.View().FarToNearX(middles);
    }
};

} // namespace QmChart6

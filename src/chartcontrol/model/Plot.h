#pragma once

#include "chartcontrol/model/Axis.h"
#include "chartcontrol/model/SeriesCollection.h"

#include <array>

namespace QmChart6 {

/// From where a 3D chart is looked at, in the plot's AngleUnit.
struct View3d {
    double Rotation = 60;
    double Elevation = 30;

    friend bool operator==(const View3d&, const View3d&) = default;
};

struct Plot {
    Plot();

    /// The plot takes the room that titles and legend leave; otherwise it fills LocationRect.
    bool AutoLayout = true;
    CoordinateRect LocationRect;
    QmChart6::Projection Projection = QmChart6::Projection::Oblique;
    QmChart6::View3d View3d;
    QmChart6::AngleUnit AngleUnit = QmChart6::AngleUnit::Degrees;
    QmChart6::SubPlotLabelPosition SubPlotLabelPosition = QmChart6::SubPlotLabelPosition::Above;
    /// Each row of the grid is a series, each column a category. Chart::SetDataSeriesInRow changes it.
    bool DataSeriesInRow = false;
    /// Room between the clusters of two categories, in percent of a bar's width.
    double BarGap = 0;
    double XGap = 80;
    /// The names of lines stand at their ends, where all of them fit, in place of a legend that nobody asked
    /// for.
    bool DirectNames = false;
    QmChart6::SeriesCollection SeriesCollection;

    /// The axis of an id from 0 to 3; another id raises error 5, another index than 1 error 9.
    [[nodiscard]] QmChart6::Axis& Axis(int id, int index = 1);
    [[nodiscard]] const QmChart6::Axis& Axis(int id, int index = 1) const;
    [[nodiscard]] QmChart6::Axis& Axis(AxisId id) { return Axis(static_cast<int>(id)); }
    [[nodiscard]] const QmChart6::Axis& Axis(AxisId id) const { return Axis(static_cast<int>(id)); }

    friend bool operator==(const Plot&, const Plot&) = default;

private:
    std::array<QmChart6::Axis, 4> axes_;
};

} // namespace QmChart6

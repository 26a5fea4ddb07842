#pragma once

#include "chartcontrol/layout/Layout.h"

#include <optional>
#include <vector>

namespace QmChart6 {

/// The most handles that a series gets; of more points, evenly many.
inline constexpr std::size_t MostHandles = 25;

/// Where the handles of a part stand: at the corners of its bounds, of a series at its points. AnyIndex in
/// the part stands for any. Nothing for a part that the scene does not show; the chart is always there.
std::vector<Point> HandlePlaces(const LaidOutChart& laidOut, const Part& part);

/// The handles of a selected part as a scene to be painted over the chart: small white squares with dark
/// edges, wholly within the picture. `current` is the place of the one data point that is selected; its
/// handle is dark.
Scene SelectionHandles(const LaidOutChart& laidOut, const Part& part, std::optional<Point> current = {});

} // namespace QmChart6

#pragma once

#include "chartcontrol/model/Texts.h"
#include "chartcontrol/scene/Scene.h"
#include "chartcontrol/scene/TextMeasurer.h"

#include <optional>

namespace QmChart6 {

/// The rectangle that the chart's title stands in: its own where it was placed by hand, otherwise that of its
/// text in the scene. Nothing where the scene shows none.
std::optional<CoordinateRect> StandingRect(const Title& title, const Scene& scene);

/// Places the title by hand, its centre where the rectangle `before` has its own, in the room that its text
/// takes now. It may reach beyond the chart: where it was is what counts. `unchanged` is the title as it was.
/// Where that was placed by hand and its text takes the same room, it keeps its rectangle; without a text it
/// keeps its extents, exchanged where it was turned.
void PlaceTitleAround(Title& title, const CoordinateRect& before, const Title& unchanged,
                      const Size& chartSize, const TextMeasurer& measurer);

} // namespace QmChart6

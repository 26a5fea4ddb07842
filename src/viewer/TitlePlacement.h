#pragma once

#include "chartcontrol/model/Texts.h"
#include "chartcontrol/scene/Scene.h"

#include <optional>

namespace QmChart6 {

/// The rectangle that the chart's title stands in: its own where it was placed by hand, otherwise that of its
/// text in the scene. Nothing where the scene shows none.
std::optional<CoordinateRect> StandingRect(const Title& title, const Scene& scene);

/// Places the title by hand, its centre where the rectangle `before` has its own, in a chart of that size. It
/// keeps the rectangle's extents, exchanged where it was turned between horizontal and vertical; `unchanged`
/// is the title as it was. What its text takes beyond them is the matter of layout.
void PlaceTitleAround(Title& title, const CoordinateRect& before, const Title& unchanged,
                      const Size& chartSize);

} // namespace QmChart6

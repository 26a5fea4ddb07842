#pragma once

#include "chartcontrol/scene/Scene.h"

#include <vector>

namespace QmChart6 {

/// What a data label belongs to: the bar, or the point as a small box round it; and whether its value is
/// negative.
struct LabelAnchor {
    Box box;
    bool isBar = false;
    bool negative = false;
};

/// A place for a label, and whether a line must lead to it because it stands away from its mark.
struct LabelPlace {
    Box box;
    bool away = false;
};

/// Where a label of that size may stand: the location that was asked for, then others that come next to it.
/// Places away from the mark are only given where a line may lead there.
std::vector<LabelPlace> PlacesFor(LabelLocation location, const LabelAnchor& anchor, const Size& size,
                                  bool withLine);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/text/Ground.h"
#include "chartcontrol/layout/text/TextBlock.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <optional>
#include <vector>

namespace QmChart6 {

/// What a data label belongs to: the bar, or the point as a small box round it; and whether its value is
/// negative.
struct LabelAnchor {
    Box box;
    bool isBar = false;
    bool negative = false;
};

/// How a label stands to its mark: on it, right beside it, or away from it, where a line must lead to it.
enum class LabelStand { On, Beside, Away };

struct LabelPlace {
    Box box;
    LabelStand stand = LabelStand::Beside;
};

/// Where the line to a label that stands away begins at its mark: at the end that is nearer.
Point LineStart(const LabelAnchor& anchor, const Box& label);

/// Where a label of that size may stand: the location that was asked for, then others that come next to it.
/// Places away from the mark are only given where a line may lead there.
std::vector<LabelPlace> PlacesFor(LabelLocation location, const LabelAnchor& anchor, const Size& size,
                                  bool withLine);

/// How far a plate reaches beyond its text, in points.
inline constexpr double PlateRim = 1;

/// A place that was found, and whether the label needs a plate there to be read.
struct FoundPlace {
    LabelPlace place;
    Colour ground;
    bool plate = false;
    /// It stands on a mark: what shines through it takes some of the contrast.
    bool onMark = false;
};

/// The first place where all of a label is read: on its bar with air around it, else on one plain surface,
/// else, of a point, on a plate over lines. Nothing where there is none.
std::optional<FoundPlace> FindPlace(const Ground& ground, const LabelAnchor& anchor,
                                    const std::vector<LabelPlace>& places);

/// Draws a label where it was found, in its own colour where that is read there.
void DrawLabel(SceneBuilder& builder, Part part, TextBlock block, const FoundPlace& found,
               HorizontalAlignment alignment = HorizontalAlignment::Center);

} // namespace QmChart6

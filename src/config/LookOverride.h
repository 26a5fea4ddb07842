#pragma once

#include "config/Look.h"

namespace QmChart6 {

class Viewer;

/// From now on the chart of that graph id has this look whenever its stored look is asked for, whatever is
/// stored; nothing goes back to what is stored. Blanks at the id's ends and case do not count.
void SetLookOverride(const QString& graphId, const std::optional<Look>& look);

/// Gives the viewer the look set for its graph id on top of the default look; false
/// where there is none.
bool ApplyLookOverride(Viewer& viewer, bool loadTitles);

} // namespace QmChart6

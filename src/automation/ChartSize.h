#pragma once

#include "viewer/Snapshot.h"

#include <QSize>

#include <optional>

namespace QmChart6 {

class GraphForm;

/// The size in pixels that charts are made in, and how many of them make an inch; no size leaves it to their
/// look.
void SetSizeOfNewCharts(std::optional<QSize> size, int pixelsPerInch);

/// Gives the viewer the size in which its chart has that size, if there is one.
void ApplySizeOfNewCharts(GraphForm& viewer);

/// The size of a picture of the viewer's chart, to the pixel.
SnapshotSize SizeOfPicture(GraphForm& viewer);

} // namespace QmChart6

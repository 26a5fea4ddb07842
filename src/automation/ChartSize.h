#pragma once

#include <QSize>

#include <optional>

namespace QmChart6 {

class GraphForm;

/// The size in logical pixels that charts are made in; nothing leaves it to their look.
void SetSizeOfNewCharts(std::optional<QSize> size);

/// Gives the viewer the size in which its chart has that size, if there is one.
void ApplySizeOfNewCharts(GraphForm& viewer);

} // namespace QmChart6

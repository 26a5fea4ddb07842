#pragma once

namespace QmChart6 {

/// Pixels, which shapes are fitted to, or coordinates that stay as they are.
enum class PaintTarget { Raster, Vector };

} // namespace QmChart6

#pragma once

namespace QmChart6 {

/// Sums of a table's values that shares are reckoned by are kept times this, so that none is beyond the
/// largest double: a table has fewer than 2 to the 30 values. A power of two takes no digit from a value.
inline constexpr double SumUnit = 0x1p-32;

} // namespace QmChart6

#pragma once

#include <span>
#include <vector>

namespace QmChart6 {

/// The extremes of a few neighbouring values: pictures of large tables need no more of most. Infinities the
/// wrong way round where all of them are missing.
struct ValueBlock {
    static constexpr int Size = 8;

    double low = 0;
    double high = 0;
};

/// The blocks of a column: values 0 to 7, 8 to 15 and so on; the last may be short.
std::vector<ValueBlock> BlocksOf(std::span<const double> values);

/// The extremes of all blocks.
ValueBlock ExtremesOf(std::span<const ValueBlock> blocks);

} // namespace QmChart6

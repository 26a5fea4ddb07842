#include "chartcontrol/model/ValueBlocks.h"

#include <algorithm>
#include <limits>

namespace QmChart6 {

std::vector<ValueBlock> BlocksOf(std::span<const double> values) {
    std::vector<ValueBlock> blocks((values.size() + ValueBlock::Size - 1) / ValueBlock::Size);
    std::size_t start = 0;
    for (ValueBlock& block : blocks) {
        const std::size_t end = std::min(start + ValueBlock::Size, values.size());
        double low = std::numeric_limits<double>::infinity();
        double high = -low;
        for (; start < end; ++start) {
            const double value = values[start];
            // In this order a missing value, which is not a number, changes neither.
            low = value < low ? value : low;
            high = value > high ? value : high;
        }
        block = {low, high};
    }
    return blocks;
}

ValueBlock ExtremesOf(std::span<const ValueBlock> blocks) {
    ValueBlock whole{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    for (const ValueBlock& block : blocks) {
        whole.low = std::min(whole.low, block.low);
        whole.high = std::max(whole.high, block.high);
    }
    return whole;
}

} // namespace QmChart6

#include "chartcontrol/layout/text/Spread.h"

#include <algorithm>
#include <cstddef>

namespace QmChart6 {

namespace {

/// Neighbours that meet become one block, which stands at the mean of its members' wishes.
struct Block {
    std::size_t first = 0;
    std::size_t count = 1;
    double sum = 0; // of what each member wishes for the block's start
    double height = 0;

    [[nodiscard]] double Start(double low, double high) const {
        return std::clamp(sum / static_cast<double>(count), low, std::max(low, high - height));
    }
    /// A member's wish for the start of the joint block is its own less what stands above it.
    void Join(const Block& below) {
        sum += below.sum - static_cast<double>(below.count) * height;
        count += below.count;
        height += below.height;
    }
};

} // namespace

std::vector<double> SpreadOut(const std::vector<SpreadPiece>& pieces, double top, double bottom) {
    std::vector<Block> blocks;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        blocks.push_back({i, 1, pieces[i].wished - pieces[i].height / 2, pieces[i].height});
        while (blocks.size() > 1) {
            Block& before = blocks[blocks.size() - 2];
            const Block& last = blocks.back();
            if (before.Start(top, bottom) + before.height <= last.Start(top, bottom)) break;
            before.Join(last);
            blocks.pop_back();
        }
    }
    std::vector<double> middles;
    for (const Block& block : blocks) {
        double y = block.Start(top, bottom);
        for (std::size_t i = block.first; i < block.first + block.count; ++i) {
            middles.push_back(y + pieces[i].height / 2);
            y += pieces[i].height;
        }
    }
    return middles;
}

} // namespace QmChart6

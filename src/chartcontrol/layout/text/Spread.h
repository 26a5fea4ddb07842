#pragma once

#include <vector>

namespace QmChart6 {

/// A piece of a column: how high it is, and where its middle would best be.
struct SpreadPiece {
    double height = 0;
    double wished = 0;
};

/// The middles of pieces that come in the order of their wishes, moved as little as can be so that none meets
/// the next and all stay between `top` and `bottom` (where they fit there).
std::vector<double> SpreadOut(const std::vector<SpreadPiece>& pieces, double top, double bottom);

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/space/SpaceTrack.h"

#include <array>
#include <vector>

namespace QmChart6 {

/// A piece of the areas of a row, between two places, on which no area crosses what it stands on: every one
/// is a slab with a lower and an upper side.
struct AreaPiece {
    /// An area at both ends of the piece. What hangs down ends below where it starts.
    struct Slab {
        std::array<double, 2> base{};
        std::array<double, 2> top{};
        bool isDrawn = false;
        bool hangs = false;
    };

    /// Parts of the way from the stretch's first column to its last.
    std::array<double, 2> at{0, 1};
    /// In the order of the tracks.
    std::vector<Slab> slabs;
};

/// The pieces of the stretch from a column to the next, from left to right. Where values change sign, piled
/// areas are piled anew from `ground` on, upwards and downwards, at each place that one of them crosses zero.
std::vector<AreaPiece> PiecesOf(const std::vector<SpaceTrack>& tracks, std::size_t column, double ground);

} // namespace QmChart6

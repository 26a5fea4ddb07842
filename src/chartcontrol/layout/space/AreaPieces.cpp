#include "chartcontrol/layout/space/AreaPieces.h"

#include <algorithm>

namespace QmChart6 {

namespace {

/// Whether an area stands upwards at one end and hangs down at the other: its pile is another there.
bool ChangesPile(const SpaceTrack& track, std::size_t column) {
    return track.RunsOn(column) && (track.Height(column) < 0) != (track.Height(column + 1) < 0);
}

/// Where the areas cross what they stand on, between the ends.
std::vector<double> CrossingsOf(const std::vector<SpaceTrack>& tracks, std::size_t column) {
    std::vector<double> crossings;
    for (const SpaceTrack& track : tracks) {
        const double first = track.Height(column);
        const double last = track.Height(column + 1);
        if ((first < 0 && last > 0) || (first > 0 && last < 0)) crossings.push_back(first / (first - last));
    }
    std::ranges::sort(crossings);
    return crossings;
}

AreaPiece WholePiece(const std::vector<SpaceTrack>& tracks, std::size_t column) {
    AreaPiece piece;
    for (const SpaceTrack& track : tracks) {
        AreaPiece::Slab slab{{track.base[column], track.base[column + 1]},
                             {track.top[column], track.top[column + 1]},
                             track.RunsOn(column),
                             false};
        slab.hangs = track.Height(column) + track.Height(column + 1) < 0;
        piece.slabs.push_back(slab);
    }
    return piece;
}

/// A piece on which no height changes its sign, piled anew.
AreaPiece PiledPiece(const std::vector<SpaceTrack>& tracks, std::size_t column, double ground, double from,
                     double to) {
    AreaPiece piece{{from, to}, {}};
    std::array<double, 2> up{ground, ground};
    std::array<double, 2> down = up;
    for (const SpaceTrack& track : tracks) {
        const auto height = [&](double at) {
            return track.Height(column) * (1 - at) + track.Height(column + 1) * at;
        };
        AreaPiece::Slab slab;
        slab.isDrawn = track.RunsOn(column);
        slab.hangs = height((from + to) / 2) < 0;
        std::array<double, 2>& level = slab.hangs ? down : up;
        slab.base = level;
        level[0] += height(from);
        level[1] += height(to);
        slab.top = level;
        piece.slabs.push_back(slab);
    }
    return piece;
}

} // namespace

std::vector<AreaPiece> PiecesOf(const std::vector<SpaceTrack>& tracks, std::size_t column, double ground) {
    const bool changes =
        std::ranges::any_of(tracks, [&](const SpaceTrack& track) { return ChangesPile(track, column); });
    if (!changes) return {WholePiece(tracks, column)};
    std::vector<double> ends = CrossingsOf(tracks, column);
    ends.push_back(1);
    std::vector<AreaPiece> pieces;
    double from = 0;
    for (const double to : ends) {
        if (to > from) pieces.push_back(PiledPiece(tracks, column, ground, from, to));
        from = std::max(from, to);
    }
    return pieces;
}

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/data/DataPointHit.h"
#include "chartcontrol/scene/Scene.h"

#include <array>
#include <optional>
#include <vector>

namespace QmChart6 {

/// Where the points of a 3D plot are, as its marks were drawn: the middle of a bar's largest face, the middle
/// of a step's tread or of the tape at its category, the edge of an area's front.
class SpacePlaces {
public:
    /// A mark at one column of its row.
    struct Stand {
        /// The category that is drawn, from 1; of several in one column the one that reaches farthest.
        int category = 0;
        Point place;
        /// The mark's edge through the depth of the row, from its front to its back.
        std::array<Point, 2> edge;
        /// What is seen of it from the front: from its base to its top.
        std::array<Point, 2> upright;
    };

    SpacePlaces() = default;
    SpacePlaces(int series, int categories);

    /// Stands are added from the first column on; `joined` ones run into their neighbours, as tapes do.
    void Add(int series, const Stand& stand, bool joined);

    [[nodiscard]] std::optional<Point> At(DataPointHit point) const;
    /// Of points at the same place, the first.
    [[nodiscard]] std::optional<DataPointHit> Nearest(int series, Point place) const;
    /// The point that a face shows at a place: of joined marks the nearer end of the stretch that begins at
    /// `category`, or the nearest upright where the face is that of all (0).
    [[nodiscard]] std::optional<DataPointHit> OnFace(int series, int category, Point place) const;

    [[nodiscard]] int SeriesCount() const { return static_cast<int>(tracks_.size()); }
    [[nodiscard]] int CategoryCount() const { return categories_; }

private:
    struct Track {
        bool joined = false;
        std::vector<Stand> stands;
    };

    [[nodiscard]] const Track& Of(int series) const { return tracks_[static_cast<std::size_t>(series) - 1]; }

    std::vector<Track> tracks_;
    int categories_ = 0;
};

} // namespace QmChart6

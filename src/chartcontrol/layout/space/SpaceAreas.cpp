#include "chartcontrol/layout/space/SpaceAreas.h"

#include "chartcontrol/layout/space/AreaPieces.h"

#include <algorithm>
#include <array>

namespace QmChart6 {

namespace {

/// How much of its slot a piece takes whose value stands alone between missing ones.
constexpr double LoneAreaShare = 0.1;

class AreasOfRow : SpaceRow {
public:
    AreasOfRow(const SpaceRow& row, const std::vector<SpaceTrack>& tracks)
        : SpaceRow(row), faces_(context.builder, plan), tracks_(tracks),
          seesFront_(plan.View().Sees({0, 0, -1}, {0, 0, Front(TapeDepthShare)})) {}

    void Run() {
        for (const int column : Stretches()) Stretch(static_cast<std::size_t>(column));
        LoneAreas();
        for (std::size_t track = 0; track < tracks_.size(); ++track) Fronts(track);
    }

private:
    [[nodiscard]] std::vector<AreaPiece> Pieces(std::size_t column) const {
        return PiecesOf(tracks_, column, tracks_.front().base[column]);
    }
    [[nodiscard]] double XAt(std::size_t column, double part) const {
        return X(column) * (1 - part) + X(column + 1) * part;
    }

    void Stretch(std::size_t column) {
        const std::vector<AreaPiece> pieces = Pieces(column);
        std::vector<double> middles;
        for (const AreaPiece& piece : pieces) middles.push_back(XAt(column, (piece.at[0] + piece.at[1]) / 2));
        for (const int place : plan.View().FarToNearX(middles)) {
            const AreaPiece& piece = pieces[static_cast<std::size_t>(place)];
            for (const std::size_t track : FarToNear(piece)) Slab(track, column, piece);
        }
    }

    /// The slabs that are drawn, in the order in which they hide each other.
    [[nodiscard]] std::vector<std::size_t> FarToNear(const AreaPiece& piece) const {
        std::vector<std::size_t> order;
        for (std::size_t track = 0; track < piece.slabs.size(); ++track)
            if (piece.slabs[track].isDrawn) order.push_back(track);
        const bool fromAbove = plan.View().IsBeyondY(plan.size.y / 2);
        const auto height = [&](std::size_t track) {
            const AreaPiece::Slab& slab = piece.slabs[track];
            return slab.base[0] + slab.base[1] + slab.top[0] + slab.top[1];
        };
        std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
            return fromAbove ? height(a) < height(b) : height(a) > height(b);
        });
        return order;
    }

    /// The lower and upper side of one slab, and the ends of its area.
    void Slab(std::size_t number, std::size_t column, const AreaPiece& piece) {
        const SpaceTrack& track = tracks_[number];
        const AreaPiece::Slab& slab = piece.slabs[number];
        const Part part = PartOf(track, column);
        const Brush& brush = BrushOf(track.series);
        const std::array<double, 2> x{XAt(column, piece.at[0]), XAt(column, piece.at[1])};
        const double front = Front(TapeDepthShare);
        const double back = Back(TapeDepthShare);
        const auto side = [&](const std::array<double, 2>& y, double up) {
            const std::array<SpacePoint, 4> corners{
                SpacePoint{x[0], y[0], front}, {x[1], y[1], front}, {x[1], y[1], back}, {x[0], y[0], back}};
            faces_.Add(part, corners, SpacePoint{y[0] - y[1], x[1] - x[0], 0} * up, brush);
        };
        const auto end = [&](std::size_t at, double direction) {
            const std::array<SpacePoint, 4> corners{SpacePoint{x[at], slab.base[at], front},
                                                    {x[at], slab.top[at], front},
                                                    {x[at], slab.top[at], back},
                                                    {x[at], slab.base[at], back}};
            faces_.Add(part, corners, {direction, 0, 0}, brush);
        };
        side(slab.base, slab.hangs ? 1 : -1);
        if (piece.at[0] == 0 && (column == 0 || !track.Has(column - 1))) end(0, -1);
        if (piece.at[1] == 1 && !track.RunsOn(column + 1)) end(1, 1);
        side(slab.top, slab.hangs ? -1 : 1);
    }

    /// A value alone has no width of its own; it is a narrow piece.
    void LoneAreas() {
        const double half = LoneAreaShare * plan.slot / 2;
        for (const SpaceTrack& track : tracks_)
            for (std::size_t column = 0; column <= Last(); ++column) {
                if (!track.IsAlone(column)) continue;
                const auto [low, high] = std::minmax(track.top[column], track.base[column]);
                faces_.AddBox(PartOf(track, column), {X(column) - half, low, Front(TapeDepthShare)},
                              {X(column) + half, high, Back(TapeDepthShare)}, BrushOf(track.series));
            }
    }

    /// The front, or back, of each unbroken run of an area: one face, so that no seam shows. In a pile a run
    /// ends where its area changes to the other side of zero.
    void Fronts(std::size_t number) {
        const bool isPiled = tracks_.size() > 1;
        bool hangs = false;
        for (std::size_t column = 0; column < Last(); ++column)
            for (const AreaPiece& piece : Pieces(column)) {
                const AreaPiece::Slab& slab = piece.slabs[number];
                if (!slab.isDrawn || (isPiled && slab.hangs != hangs)) CloseFront(number);
                if (!slab.isDrawn) continue;
                hangs = slab.hangs;
                if (tops_.empty()) Extend(column, piece, slab, 0);
                Extend(column, piece, slab, 1);
            }
        CloseFront(number);
    }

    [[nodiscard]] double SeenZ() const { return seesFront_ ? Front(TapeDepthShare) : Back(TapeDepthShare); }

    void Extend(std::size_t column, const AreaPiece& piece, const AreaPiece::Slab& slab, std::size_t end) {
        // Areas by themselves are whole from column to column.
        if (tracks_.size() == 1 && end == 1 && piece.at[1] < 1) return;
        const double x = XAt(column, piece.at[end]);
        tops_.push_back({x, slab.top[end], SeenZ()});
        bases_.push_back({x, slab.base[end], SeenZ()});
    }

    void CloseFront(std::size_t number) {
        if (tops_.empty()) return;
        tops_.insert(tops_.end(), bases_.rbegin(), bases_.rend());
        const int series = tracks_[number].series;
        faces_.Add({PartCode::Series, series}, tops_, {0, 0, seesFront_ ? -1.0 : 1.0}, BrushOf(series));
        tops_.clear();
        bases_.clear();
    }

    SpaceFaces faces_;
    const std::vector<SpaceTrack>& tracks_;
    bool seesFront_;
    // Of the front that is being followed.
    std::vector<SpacePoint> tops_;
    std::vector<SpacePoint> bases_;
};

} // namespace

void LayOutSpaceAreas(const SpaceRow& row, const std::vector<SpaceTrack>& tracks) {
    AreasOfRow(row, tracks).Run();
}

} // namespace QmChart6

#include "chartcontrol/layout/space/SpaceMarks.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/space/SpaceFaces.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace QmChart6 {

namespace {

/// How much of its row a mark fills in depth, the rest being gap.
constexpr double BarDepthShare = 0.5;
constexpr double TapeDepthShare = 0.7;
/// How much of its slot a piece of tape, or of an area, takes whose value stands alone between missing ones.
constexpr double LoneTapeShare = 0.3;
constexpr double LoneAreaShare = 0.1;

/// The places of one series in its row: y in space by column, not-a-number where its value is missing.
struct Track {
    int series = 0;
    Mark mark = Mark::Bar;
    /// By column: which category is drawn, from 0, and where its mark reaches from and to.
    std::vector<int> category;
    std::vector<double> top;
    std::vector<double> base;
    /// The middle of a bar as it is seen.
    std::vector<Point> middle;

    [[nodiscard]] bool Has(std::size_t column) const { return !std::isnan(top[column]); }
    /// Whether the neighbours' values are missing.
    [[nodiscard]] bool IsAlone(std::size_t column) const {
        const bool before = column > 0 && Has(column - 1);
        const bool after = column + 1 < top.size() && Has(column + 1);
        return Has(column) && !before && !after;
    }
};

class RowMarks {
public:
    RowMarks(const LayoutContext& context, const SpacePlan& plan, const PlottedValues& plotted, int row,
             SpacePlaces& places)
        : context_(context), plan_(plan), plotted_(plotted), faces_(context.builder, plan), row_(row),
          places_(places) {
        for (int number = 1; number <= context.chart.Plot.SeriesCollection.Count(); ++number)
            if (plan.rowOfSeries[static_cast<std::size_t>(number) - 1] == row)
                tracks_.push_back(TrackOf(number));
    }

    void Run() {
        if (tracks_.empty() || plan_.columns.empty()) return;
        static constexpr std::array<std::pair<Mark, void (RowMarks::*)()>, 4> drawings{
            {{Mark::Bar, &RowMarks::Bars},
             {Mark::Area, &RowMarks::Areas},
             {Mark::Line, &RowMarks::Tapes},
             {Mark::Step, &RowMarks::Steps}}};
        for (const auto& [mark, draw] : drawings)
            if (mark == tracks_.front().mark) (this->*draw)();
        for (const Track& track : tracks_) TellPlaces(track);
    }

private:
    [[nodiscard]] double Z() const { return plan_.rows[static_cast<std::size_t>(row_)]; }
    [[nodiscard]] double Front(double share) const { return Z() - share * plan_.rowDepth / 2; }
    [[nodiscard]] double Back(double share) const { return Z() + share * plan_.rowDepth / 2; }
    [[nodiscard]] double X(std::size_t column) const { return plan_.columns[column]; }
    [[nodiscard]] std::size_t Last() const { return plan_.columns.size() - 1; }

    [[nodiscard]] const Brush& BrushOf(const Track& track, std::size_t column) const {
        return context_.chart.Plot.SeriesCollection(track.series)
            .DataPoints.Item(track.category[column] + 1)
            .Brush;
    }
    [[nodiscard]] const Brush& BrushOf(int series) const {
        return context_.chart.Plot.SeriesCollection(series).DataPoints.Item(DataPoints::All).Brush;
    }
    [[nodiscard]] static Part PartOf(const Track& track, std::size_t column) {
        return {PartCode::Series, track.series, track.category[column] + 1};
    }

    /// The category of a column's categories whose value reaches farthest.
    [[nodiscard]] int Farthest(const Values& values, std::size_t column) const {
        const int begin = plan_.categories[column];
        const int end = column < Last() ? plan_.categories[column + 1] : values.count;
        int farthest = begin;
        for (int category = begin; category < end; ++category)
            if (std::isnan(values[farthest]) || std::abs(values[category]) > std::abs(values[farthest]))
                farthest = category;
        return farthest;
    }

    [[nodiscard]] Track TrackOf(int number) const {
        const AxisMap& map = plan_.MapOf(context_.chart.Plot.SeriesCollection(number));
        const Values tops = plotted_.Top(number);
        const Values bases = plotted_.Base(number);
        Track track{number, plotted_.MarkOf(number), {}, {}, {}, {}};
        for (std::size_t column = 0; column < plan_.columns.size(); ++column) {
            const int category = Farthest(tops, column);
            track.category.push_back(category);
            track.top.push_back(map.At(tops[category]));
            track.base.push_back(bases.first == nullptr ? map.Base() : map.StandAt(bases[category]));
        }
        track.middle.resize(plan_.columns.size());
        return track;
    }

    /// The tracks in the order in which those of a column hide each other.
    [[nodiscard]] std::vector<Track*> Piled(std::size_t column) {
        std::vector<Track*> piled;
        for (Track& track : tracks_)
            if (track.Has(column)) piled.push_back(&track);
        const bool fromAbove = plan_.View().IsBeyondY(plan_.size.y / 2);
        std::stable_sort(piled.begin(), piled.end(), [&](const Track* a, const Track* b) {
            const double low = a->top[column] + a->base[column];
            const double high = b->top[column] + b->base[column];
            return fromAbove ? low < high : low > high;
        });
        return piled;
    }

    [[nodiscard]] std::vector<int> Columns() const { return plan_.View().FarToNearX(plan_.columns); }

    void Bars() {
        const double half = plan_.slot / (1 + std::max(0.0, context_.chart.Plot.XGap / 100)) / 2;
        for (const int index : Columns()) {
            const auto column = static_cast<std::size_t>(index);
            for (Track* track : Piled(column)) {
                const double low = std::min(track->top[column], track->base[column]);
                const double high = std::max(track->top[column], track->base[column]);
                track->middle[column] =
                    faces_.AddBox(PartOf(*track, column), {X(column) - half, low, Front(BarDepthShare)},
                                  {X(column) + half, high, Back(BarDepthShare)}, BrushOf(*track, column));
            }
        }
    }

    /// The stretches between neighbouring columns, from the farthest to the nearest.
    [[nodiscard]] std::vector<int> Stretches() const {
        std::vector<double> middles;
        for (std::size_t column = 0; column < Last(); ++column)
            middles.push_back((X(column) + X(column + 1)) / 2);
        return plan_.View().FarToNearX(middles);
    }

    /// A sheet that runs through the depth of the row from one place to another.
    void Sheet(Part part, SpacePoint from, SpacePoint to, double share, const Brush& brush) {
        const std::array<SpacePoint, 4> corners{SpacePoint{from.x, from.y, Front(share)},
                                                {to.x, to.y, Front(share)},
                                                {to.x, to.y, Back(share)},
                                                {from.x, from.y, Back(share)}};
        faces_.AddSheet(part, corners, {from.y - to.y, to.x - from.x, 0}, brush);
    }

    void Tapes() {
        for (const int index : Stretches()) {
            const auto column = static_cast<std::size_t>(index);
            for (const Track* track : Piled(column))
                if (track->Has(column + 1))
                    Sheet(PartOf(*track, column), {X(column), track->top[column], 0},
                          {X(column + 1), track->top[column + 1], 0}, TapeDepthShare, BrushOf(track->series));
        }
        LoneTapes();
    }

    /// Values between missing ones, or of a single category, are short pieces of tape.
    void LoneTapes() {
        const double half = LoneTapeShare * plan_.slot / 2;
        for (const Track& track : tracks_)
            for (std::size_t column = 0; column <= Last(); ++column) {
                if (!track.IsAlone(column)) continue;
                Sheet(PartOf(track, column), {X(column) - half, track.top[column], 0},
                      {X(column) + half, track.top[column], 0}, TapeDepthShare, BrushOf(track.series));
            }
    }

    void Steps() {
        for (const int index : Columns()) {
            const auto column = static_cast<std::size_t>(index);
            const double left = X(column) - plan_.slot / 2;
            const double right = X(column) + plan_.slot / 2;
            const bool fromRight = plan_.View().IsBeyondX(X(column));
            for (const Track* track : Piled(column)) {
                const Part part = PartOf(*track, column);
                const double y = track->top[column];
                const auto riser = [&] {
                    if (column < Last() && track->Has(column + 1))
                        Sheet(part, {right, y, 0}, {right, track->top[column + 1], 0}, TapeDepthShare,
                              BrushOf(track->series));
                };
                // The riser at the right end belongs behind the tread when it is looked at from the left.
                if (!fromRight) riser();
                Sheet(part, {left, y, 0}, {right, y, 0}, TapeDepthShare, BrushOf(track->series));
                if (fromRight) riser();
            }
        }
    }

    void Areas() {
        for (const int index : Stretches()) {
            const auto column = static_cast<std::size_t>(index);
            for (const Track* track : Piled(column))
                if (track->Has(column + 1)) Stretch(*track, column);
        }
        LoneAreas();
        for (const Track& track : tracks_) Fronts(track);
    }

    /// A value alone has no width of its own; it is a narrow piece.
    void LoneAreas() {
        const double half = LoneAreaShare * plan_.slot / 2;
        for (const Track& track : tracks_)
            for (std::size_t column = 0; column <= Last(); ++column) {
                if (!track.IsAlone(column)) continue;
                const auto [low, high] = std::minmax(track.top[column], track.base[column]);
                faces_.AddBox(PartOf(track, column), {X(column) - half, low, Front(TapeDepthShare)},
                              {X(column) + half, high, Back(TapeDepthShare)}, BrushOf(track.series));
            }
    }

    /// The upper and lower side of one stretch of an area, and its ends.
    void Stretch(const Track& track, std::size_t column) {
        const Part part = PartOf(track, column);
        const Brush& brush = BrushOf(track.series);
        const double left = X(column);
        const double right = X(column + 1);
        const double front = Front(TapeDepthShare);
        const double back = Back(TapeDepthShare);
        const auto side = [&](double y1, double y2, double up) {
            const std::array<SpacePoint, 4> corners{
                SpacePoint{left, y1, front}, {right, y2, front}, {right, y2, back}, {left, y1, back}};
            faces_.Add(part, corners, SpacePoint{y1 - y2, right - left, 0} * up, brush);
        };
        const auto end = [&](std::size_t at, double direction) {
            const std::array<SpacePoint, 4> corners{SpacePoint{X(at), track.base[at], front},
                                                    {X(at), track.top[at], front},
                                                    {X(at), track.top[at], back},
                                                    {X(at), track.base[at], back}};
            faces_.Add(part, corners, {direction, 0, 0}, brush);
        };
        const bool above =
            track.top[column] + track.top[column + 1] >= track.base[column] + track.base[column + 1];
        side(track.base[column], track.base[column + 1], above ? -1 : 1);
        if (column == 0 || !track.Has(column - 1)) end(column, -1);
        if (column + 1 == Last() || !track.Has(column + 2)) end(column + 1, 1);
        side(track.top[column], track.top[column + 1], above ? 1 : -1);
    }

    [[nodiscard]] bool SeesFront() const {
        return plan_.View().Sees({0, 0, -1}, {0, 0, Front(TapeDepthShare)});
    }
    /// Where the side of the row is that is turned to the viewer.
    [[nodiscard]] double SeenZ() const { return SeesFront() ? Front(TapeDepthShare) : Back(TapeDepthShare); }

    void TellPlaces(const Track& track) {
        const double seen = SeenZ();
        for (std::size_t column = 0; column <= Last(); ++column) {
            if (!track.Has(column)) continue;
            const auto page = [&](double y, double z) { return plan_.Page({X(column), y, z}); };
            const double top = track.top[column];
            const Point place = track.mark == Mark::Bar    ? track.middle[column]
                                : track.mark == Mark::Area ? page(top, seen)
                                                           : page(top, Z());
            places_.Add(track.series,
                        {track.category[column] + 1,
                         place,
                         {page(top, Front(TapeDepthShare)), page(top, Back(TapeDepthShare))},
                         {page(track.base[column], seen), page(top, seen)}},
                        track.mark == Mark::Line || track.mark == Mark::Area);
        }
    }

    /// The whole front, or back, of each unbroken run: one face, so that no seam shows.
    void Fronts(const Track& track) {
        const bool seesFront = SeesFront();
        const double z = SeenZ();
        for (std::size_t begin = 0; begin <= Last();) {
            std::size_t end = begin;
            while (end <= Last() && track.Has(end)) ++end;
            if (end - begin > 1) {
                std::vector<SpacePoint> corners;
                for (std::size_t column = begin; column < end; ++column)
                    corners.push_back({X(column), track.top[column], z});
                for (std::size_t column = end; column-- > begin;)
                    corners.push_back({X(column), track.base[column], z});
                faces_.Add({PartCode::Series, track.series}, corners, {0, 0, seesFront ? -1.0 : 1.0},
                           BrushOf(track.series));
            }
            begin = end + 1;
        }
    }

    const LayoutContext& context_;
    const SpacePlan& plan_;
    const PlottedValues& plotted_;
    SpaceFaces faces_;
    int row_;
    std::vector<Track> tracks_;
    SpacePlaces& places_;
};

} // namespace

SpacePlaces LayOutSpaceMarks(const LayoutContext& context, const SpacePlan& plan,
                             const PlottedValues& plotted) {
    SpacePlaces places(plotted.SeriesCount(), plotted.CategoryCount());
    for (const int row : plan.View().FarToNearZ(plan.rows))
        RowMarks(context, plan, plotted, row, places).Run();
    return places;
}

} // namespace QmChart6

#include "chartcontrol/layout/space/SpaceMarks.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/space/SpaceAreas.h"
#include "chartcontrol/layout/space/SpaceFaces.h"
#include "chartcontrol/layout/space/SpaceRow.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace QmChart6 {

namespace {

/// How much of its slot a piece of tape takes whose value stands alone between missing ones.
constexpr double LoneTapeShare = 0.3;

class RowMarks : SpaceRow {
public:
    RowMarks(const SpaceRow& row, const PlottedValues& plotted, SpacePlaces& places)
        : SpaceRow(row), plotted_(plotted), faces_(context.builder, plan), places_(places) {
        for (int number = 1; number <= context.chart.Plot.SeriesCollection.Count(); ++number)
            if (plan.rowOfSeries[static_cast<std::size_t>(number) - 1] == index)
                tracks_.push_back(TrackOf(number));
    }

    void Run() {
        if (tracks_.empty() || plan.columns.empty()) return;
        static constexpr std::array<std::pair<Mark, void (RowMarks::*)()>, 4> drawings{
            {{Mark::Bar, &RowMarks::Bars},
             {Mark::Area, &RowMarks::Areas},
             {Mark::Line, &RowMarks::Tapes},
             {Mark::Step, &RowMarks::Steps}}};
        for (const auto& [mark, draw] : drawings)
            if (mark == tracks_.front().mark) (this->*draw)();
        for (const SpaceTrack& track : tracks_) TellPlaces(track);
    }

private:
    /// The category of a column's categories whose value reaches farthest.
    [[nodiscard]] int Farthest(const Values& values, std::size_t column) const {
        const int begin = plan.categories[column];
        const int end = column < Last() ? plan.categories[column + 1] : values.count;
        int farthest = begin;
        for (int category = begin; category < end; ++category)
            if (std::isnan(values[farthest]) || std::abs(values[category]) > std::abs(values[farthest]))
                farthest = category;
        return farthest;
    }

    /// Bars and areas end where the space does; a tape is only where its values are.
    [[nodiscard]] double TopAt(Mark mark, double y) const {
        if (mark == Mark::Bar || mark == Mark::Area || plan.IsWithin(y)) return plan.Within(y);
        return std::numeric_limits<double>::quiet_NaN();
    }

    [[nodiscard]] SpaceTrack TrackOf(int number) const {
        const AxisMap& map = plan.MapOf(context.chart.Plot.SeriesCollection(number));
        const Values tops = plotted_.Top(number);
        const Values bases = plotted_.Base(number);
        SpaceTrack track{number, plotted_.MarkOf(number), {}, {}, {}, {}};
        for (std::size_t column = 0; column < plan.columns.size(); ++column) {
            const int category = Farthest(tops, column);
            track.category.push_back(category);
            track.top.push_back(TopAt(track.mark, map.At(tops[category])));
            track.base.push_back(
                plan.Within(bases.first == nullptr ? map.Base() : map.StandAt(bases[category])));
        }
        track.middle.resize(plan.columns.size());
        return track;
    }

    /// The tracks in the order in which those of a column hide each other.
    [[nodiscard]] std::vector<SpaceTrack*> Piled(std::size_t column) {
        std::vector<SpaceTrack*> piled;
        for (SpaceTrack& track : tracks_)
            if (track.Has(column)) piled.push_back(&track);
        const bool fromAbove = plan.View().IsBeyondY(plan.size.y / 2);
        std::stable_sort(piled.begin(), piled.end(), [&](const SpaceTrack* a, const SpaceTrack* b) {
            const double low = a->top[column] + a->base[column];
            const double high = b->top[column] + b->base[column];
            return fromAbove ? low < high : low > high;
        });
        return piled;
    }

    [[nodiscard]] std::vector<int> Columns() const { return plan.View().FarToNearX(plan.columns); }

    void Bars() {
        const double half = BarWidthShare(context.chart) * plan.slot / 2;
        for (const int place : Columns()) {
            const auto column = static_cast<std::size_t>(place);
            for (SpaceTrack* track : Piled(column)) {
                const double low = std::min(track->top[column], track->base[column]);
                const double high = std::max(track->top[column], track->base[column]);
                track->middle[column] =
                    faces_.AddBox(PartOf(*track, column), {X(column) - half, low, Front(BarDepthShare)},
                                  {X(column) + half, high, Back(BarDepthShare)}, BrushOf(*track, column));
            }
        }
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
        for (const int place : Stretches()) {
            const auto column = static_cast<std::size_t>(place);
            for (const SpaceTrack* track : Piled(column))
                if (track->Has(column + 1))
                    Sheet(PartOf(*track, column), {X(column), track->top[column], 0},
                          {X(column + 1), track->top[column + 1], 0}, TapeDepthShare, BrushOf(track->series));
        }
        LoneTapes();
    }

    /// Values between missing ones, or of a single category, are short pieces of tape.
    void LoneTapes() {
        const double half = LoneTapeShare * plan.slot / 2;
        for (const SpaceTrack& track : tracks_)
            for (std::size_t column = 0; column <= Last(); ++column) {
                if (!track.IsAlone(column)) continue;
                Sheet(PartOf(track, column), {X(column) - half, track.top[column], 0},
                      {X(column) + half, track.top[column], 0}, TapeDepthShare, BrushOf(track.series));
            }
    }

    void Steps() {
        for (const int place : Columns()) {
            const auto column = static_cast<std::size_t>(place);
            const double left = X(column) - plan.slot / 2;
            const double right = X(column) + plan.slot / 2;
            const bool fromRight = plan.View().IsBeyondX(X(column));
            for (const SpaceTrack* track : Piled(column)) {
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

    void Areas() { LayOutSpaceAreas(*this, tracks_); }

    [[nodiscard]] bool SeesFront() const {
        return plan.View().Sees({0, 0, -1}, {0, 0, Front(TapeDepthShare)});
    }
    /// Where the side of the row is that is turned to the viewer.
    [[nodiscard]] double SeenZ() const { return SeesFront() ? Front(TapeDepthShare) : Back(TapeDepthShare); }

    void TellPlaces(const SpaceTrack& track) {
        const double seen = SeenZ();
        for (std::size_t column = 0; column <= Last(); ++column) {
            if (!track.Has(column)) continue;
            const auto page = [&](double y, double z) { return plan.Page({X(column), y, z}); };
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

    const PlottedValues& plotted_;
    SpaceFaces faces_;
    std::vector<SpaceTrack> tracks_;
    SpacePlaces& places_;
};

} // namespace

SpacePlaces LayOutSpaceMarks(const LayoutContext& context, const SpacePlan& plan,
                             const PlottedValues& plotted) {
    SpacePlaces places(plotted.SeriesCount(), plotted.CategoryCount());
    for (const int row : plan.View().FarToNearZ(plan.rows))
        RowMarks({context, plan, row}, plotted, places).Run();
    return places;
}

} // namespace QmChart6

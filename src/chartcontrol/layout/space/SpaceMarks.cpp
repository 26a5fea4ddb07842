#include "chartcontrol/layout/space/SpaceMarks.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/space/SpaceFaces.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace QmChart6 {

namespace {

/// How much of its row a mark fills in depth, the rest being gap.
constexpr double BarDepthShare = 0.5;
constexpr double TapeDepthShare = 0.7;

/// The places of one series in its row: y in space by column, not-a-number where its value is missing.
struct Track {
    int series = 0;
    MarkKind kind = MarkKind::Bar;
    std::vector<double> top;
    std::vector<double> base;

    [[nodiscard]] bool Has(std::size_t column) const { return !std::isnan(top[column]); }
};

class RowMarks {
public:
    RowMarks(const LayoutContext& context, const SpacePlan& plan, const PlottedValues& plotted, int row)
        : context_(context), plan_(plan), plotted_(plotted), faces_(context.builder, plan), row_(row) {
        for (int number = 1; number <= context.chart.Plot.SeriesCollection.Count(); ++number)
            if (plan.rowOfSeries[static_cast<std::size_t>(number) - 1] == row)
                tracks_.push_back(TrackOf(number));
    }

    void Run() {
        if (tracks_.empty() || plan_.columns.empty()) return;
        const std::vector<int> columns = plan_.View().FarToNearX(plan_.columns);
        switch (tracks_.front().kind) {
        case MarkKind::Bar:
            Bars(columns);
            break;
        case MarkKind::Area:
            Areas();
            break;
        case MarkKind::Line:
            Tapes();
            break;
        case MarkKind::Step:
            Steps(columns);
            break;
        case MarkKind::XY:
        case MarkKind::Pie:
            break;
        }
    }

private:
    [[nodiscard]] double Z() const { return plan_.rows[static_cast<std::size_t>(row_)]; }
    [[nodiscard]] double Front(double share) const { return Z() - share * plan_.rowDepth / 2; }
    [[nodiscard]] double Back(double share) const { return Z() + share * plan_.rowDepth / 2; }
    [[nodiscard]] double X(std::size_t column) const { return plan_.columns[column]; }
    [[nodiscard]] std::size_t Last() const { return plan_.columns.size() - 1; }

    [[nodiscard]] const Brush& BrushOf(int series, std::size_t column) const {
        return context_.chart.Plot.SeriesCollection(series)
            .DataPoints.Item(plan_.categories[column] + 1)
            .Brush;
    }
    [[nodiscard]] const Brush& BrushOf(int series) const {
        return context_.chart.Plot.SeriesCollection(series).DataPoints.Item(DataPoints::All).Brush;
    }
    [[nodiscard]] Part PartOf(int series, std::size_t column) const {
        return {PartCode::Series, series, plan_.categories[column] + 1};
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
        const LinearMap& map = plan_.MapOf(context_.chart.Plot.SeriesCollection(number));
        const Values tops = plotted_.Top(number);
        const Values bases = plotted_.Base(number);
        Track track{number, MarkKindOf(context_.chart, number), {}, {}};
        for (std::size_t column = 0; column < plan_.columns.size(); ++column) {
            const int category = Farthest(tops, column);
            track.top.push_back(map.At(tops[category]));
            track.base.push_back(bases.first == nullptr ? PlotArea::BaseOf(map) : map.At(bases[category]));
        }
        return track;
    }

    /// The tracks in the order in which those of a column hide each other.
    [[nodiscard]] std::vector<const Track*> Piled(std::size_t column) const {
        std::vector<const Track*> piled;
        for (const Track& track : tracks_)
            if (track.Has(column)) piled.push_back(&track);
        const bool fromAbove = plan_.View().IsBeyondY(plan_.size.y / 2);
        std::stable_sort(piled.begin(), piled.end(), [&](const Track* a, const Track* b) {
            const double low = a->top[column] + a->base[column];
            const double high = b->top[column] + b->base[column];
            return fromAbove ? low < high : low > high;
        });
        return piled;
    }

    void Bars(const std::vector<int>& columns) {
        const double half = plan_.slot / (1 + std::max(0.0, context_.chart.Plot.XGap / 100)) / 2;
        for (const int index : columns) {
            const auto column = static_cast<std::size_t>(index);
            for (const Track* track : Piled(column)) {
                const double low = std::min(track->top[column], track->base[column]);
                const double high = std::max(track->top[column], track->base[column]);
                faces_.AddBox(PartOf(track->series, column), {X(column) - half, low, Front(BarDepthShare)},
                              {X(column) + half, high, Back(BarDepthShare)}, BrushOf(track->series, column));
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
                    Sheet(PartOf(track->series, column), {X(column), track->top[column], 0},
                          {X(column + 1), track->top[column + 1], 0}, TapeDepthShare, BrushOf(track->series));
        }
        LoneTapes();
    }

    /// Values between missing ones, or of a single category, are short pieces of tape.
    void LoneTapes() {
        constexpr double share = 0.3;
        for (const Track& track : tracks_)
            for (std::size_t column = 0; column <= Last(); ++column) {
                const bool before = column > 0 && track.Has(column - 1);
                const bool after = column < Last() && track.Has(column + 1);
                if (!track.Has(column) || before || after) continue;
                const double half = share * plan_.slot / 2;
                Sheet(PartOf(track.series, column), {X(column) - half, track.top[column], 0},
                      {X(column) + half, track.top[column], 0}, TapeDepthShare, BrushOf(track.series));
            }
    }

    void Steps(const std::vector<int>& columns) {
        for (const int index : columns) {
            const auto column = static_cast<std::size_t>(index);
            const double left = X(column) - plan_.slot / 2;
            const double right = X(column) + plan_.slot / 2;
            const bool fromRight = plan_.View().IsBeyondX(X(column));
            for (const Track* track : Piled(column)) {
                const Part part = PartOf(track->series, column);
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
        for (const Track& track : tracks_) Fronts(track);
    }

    /// The upper and lower side of one stretch of an area, and its ends.
    void Stretch(const Track& track, std::size_t column) {
        const Part part = PartOf(track.series, column);
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

    /// The whole front, or back, of each unbroken run: one face, so that no seam shows.
    void Fronts(const Track& track) {
        const bool seesFront = plan_.View().Sees({0, 0, -1}, {0, 0, Front(TapeDepthShare)});
        const double z = seesFront ? Front(TapeDepthShare) : Back(TapeDepthShare);
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
};

} // namespace

void LayOutSpaceMarks(const LayoutContext& context, const SpacePlan& plan, const PlottedValues& plotted) {
    for (const int row : plan.View().FarToNearZ(plan.rows)) RowMarks(context, plan, plotted, row).Run();
}

} // namespace QmChart6

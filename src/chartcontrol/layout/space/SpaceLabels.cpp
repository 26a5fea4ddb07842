#include "chartcontrol/layout/space/SpaceLabels.h"

#include "chartcontrol/layout/space/SpaceAreas.h"
#include "chartcontrol/layout/space/SpaceMarks.h"
#include "chartcontrol/layout/text/Ground.h"
#include "chartcontrol/layout/text/LabelPlaces.h"
#include "chartcontrol/layout/text/LabelText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace QmChart6 {

namespace {

constexpr double LabelGap = 2.5;
constexpr double LongestLabel = 120;
/// Labels stand beyond an end face that takes no more than this many of their heights.
constexpr double DeepestFace = 2.5;
/// What part of a plate may lie on the marks of others.
constexpr double MostCovered = 0.4;
/// A mark's end is seen where so many of the places along its edge are.
constexpr int Places = 7;
constexpr int FewestSeen = 3;

/// The end of a mark where its value is, and its upright middle, on the page.
struct MarkEnd {
    int series = 0;
    int category = 0; // from 0
    bool isBar = false;
    bool negative = false;
    /// The edge that is turned to the viewer, and all of the end.
    Point from;
    Point to;
    Box face;
    /// The middle of that edge, and of the one at the base.
    Point end;
    Point base;

    [[nodiscard]] bool IsShownBy(const Part& part) const {
        return part.code == PartCode::Series && part.index1 == series &&
               (!isBar || part.index2 == category + 1);
    }
};

Box CenteredAt(double x, double y, const Size& size) {
    return {x - size.width / 2, y - size.height / 2, x + size.width / 2, y + size.height / 2};
}

/// A place for a label. On the front of its mark it comes without a plate or not at all.
struct LabelSpot {
    Box box;
    bool onFront = false;
};

bool AreAsked(const Series& series) {
    return ShowsLabel(series.DataPoints.Item(DataPoints::All).DataPointLabel) || series.DataPoints.HasOwn();
}

class SpaceLabels {
public:
    SpaceLabels(const LayoutContext& context, const SpacePlan& plan, const PlottedValues& plotted,
                const Box& box)
        : context_(context), plan_(plan), plotted_(plotted),
          ground_(context.builder.Built(), box, context.chart.Backdrop.Fill.Brush.FillColor),
          texts_(context.chart) {}

    void Run() {
        std::vector<int> rows = plan_.View().FarToNearZ(plan_.rows);
        std::reverse(rows.begin(), rows.end());
        for (const int row : rows)
            for (int number = 1; number <= context_.chart.Plot.SeriesCollection.Count(); ++number)
                if (plan_.rowOfSeries[static_cast<std::size_t>(number) - 1] == row) Label(number, row);
        if (omitted_ > 0) context_.builder.Warn(QStringLiteral("%1 data labels have no room").arg(omitted_));
    }

private:
    void Label(int number, int row) {
        const Series& series = context_.chart.Plot.SeriesCollection(number);
        const Values tops = plotted_.Top(number);
        for (std::size_t column = 0; column < plan_.columns.size(); ++column) {
            const int category = plan_.categories[column];
            const DataPointLabel& label = series.DataPoints.Item(category + 1).DataPointLabel;
            if (!ShowsLabel(label) || std::isnan(plan_.MapOf(series).At(tops[category]))) continue;
            const MarkEnd mark = EndOf(number, row, column);
            if (IsSeen(mark)) Place(mark, label);
        }
    }

    [[nodiscard]] MarkEnd EndOf(int number, int row, std::size_t column) const {
        const AxisMap& map = plan_.MapOf(context_.chart.Plot.SeriesCollection(number));
        const int category = plan_.categories[column];
        const Values bases = plotted_.Base(number);
        const double top = plan_.Within(map.At(plotted_.Top(number)[category]));
        const double base = plan_.Within(bases.first == nullptr ? map.Base() : map.StandAt(bases[category]));
        const bool isBar = plotted_.MarkOf(number) == Mark::Bar;
        const double half = isBar ? BarWidthShare(context_.chart) * plan_.slot / 2 : 0;
        const double deep = (isBar ? BarDepthShare : TapeDepthShare) * plan_.rowDepth / 2;
        const double x = plan_.columns[column];
        const double z = plan_.rows[static_cast<std::size_t>(row)];
        const double seen = plan_.View().IsBeyondZ(z) ? z + deep : z - deep;
        MarkEnd mark{number, category, isBar, isBar && top < base, {}, {}, Box::Nothing(), {}, {}};
        for (const double side : {-half, half})
            for (const double depth : {-deep, deep})
                mark.face.Include(plan_.Page({x + side, top, z + depth}));
        // A tape has no front.
        const bool isSheet = !isBar && plotted_.MarkOf(number) != Mark::Area;
        mark.end = plan_.Page({x, top, isSheet ? z : seen});
        mark.base = plan_.Page({x, base, seen});
        mark.from = isBar ? plan_.Page({x - half, top, seen}) : plan_.Page({x, top, z - deep});
        mark.to = isBar ? plan_.Page({x + half, top, seen}) : plan_.Page({x, top, z + deep});
        return mark;
    }

    /// Whether the mark is what is seen along most of its end.
    [[nodiscard]] bool IsSeen(const MarkEnd& mark) const {
        const auto shows = [&](Point place) {
            const std::optional<Part> part = ground_.PartAt(place);
            return part && mark.IsShownBy(*part);
        };
        int seen = 0;
        for (int i = 0; i < Places; ++i) {
            const double share = (i + 0.5) / Places;
            const Point at{mark.from.x + share * (mark.to.x - mark.from.x),
                           mark.from.y + share * (mark.to.y - mark.from.y)};
            seen += shows({at.x, at.y - 1}) || shows(at) || shows({at.x, at.y + 1});
        }
        return seen >= FewestSeen;
    }

    /// Where a label may stand, the best first: where its location asks for, then beyond the mark's end, at
    /// last on its front.
    [[nodiscard]] static std::vector<LabelSpot> PlacesAt(const MarkEnd& mark, LabelLocation location,
                                                         const Size& size) {
        const double away = (mark.negative ? 1 : -1) * (LabelGap + size.height / 2);
        const double face = mark.negative ? mark.face.bottom : mark.face.top;
        const LabelSpot beyond{CenteredAt(mark.end.x, face + away, size)};
        const LabelSpot atEdge{CenteredAt(mark.end.x, mark.end.y + away, size)};
        const LabelSpot within{CenteredAt(mark.end.x, mark.end.y - away, size), true};
        const bool isDeep = std::abs(face - mark.end.y) > DeepestFace * size.height;
        std::vector<LabelSpot> places =
            isDeep ? std::vector{atEdge, within} : std::vector{beyond, atEdge, within};
        if (!mark.isBar) places.pop_back();
        if (location == LabelLocation::Center || location == LabelLocation::Inside)
            places.insert(places.begin(),
                          {CenteredAt((mark.end.x + mark.base.x) / 2, (mark.end.y + mark.base.y) / 2, size)});
        if (location == LabelLocation::Base)
            places.insert(places.begin(), {CenteredAt(mark.base.x, mark.base.y + away, size)});
        if (location == LabelLocation::BelowPoint) places.insert(places.begin(), {within.box});
        return places;
    }

    /// What part of a box shows the marks of others.
    [[nodiscard]] double CoveredOf(const MarkEnd& mark, const Box& box) const {
        constexpr double step = 1.5;
        int all = 0;
        int covered = 0;
        for (double y = box.top + step / 2; y < box.bottom; y += step)
            for (double x = box.left + step / 2; x < box.right; x += step) {
                const std::optional<Part> part = ground_.PartAt({x, y});
                covered += part && part->code == PartCode::Series && !mark.IsShownBy(*part);
                ++all;
            }
        return all > 0 ? static_cast<double>(covered) / all : 1;
    }

    [[nodiscard]] bool IsMark(const Ground::Footing& footing) const {
        const std::optional<Part> part = ground_.PartOf(footing.shape);
        return part && part->code == PartCode::Series;
    }

    /// On one surface that is not another's mark; else on a plate where that hides least of others.
    [[nodiscard]] std::optional<FoundPlace> Find(const MarkEnd& mark,
                                                 const std::vector<LabelSpot>& places) const {
        std::optional<FoundPlace> best;
        double least = MostCovered;
        for (const auto& [box, onFront] : places) {
            const Ground::Footing footing = ground_.Under(box.Grown(PlateRim));
            if (!footing.free) continue;
            const double covered = CoveredOf(mark, box);
            // Lines alone, such as a wall's edge, are no reason to go elsewhere.
            if (!(covered > 0) && (footing.even || !IsMark(footing)))
                return FoundPlace{{box}, footing.colour, !footing.even};
            if (onFront || covered >= least) continue;
            least = covered;
            best = FoundPlace{{box}, ground_.PlainColour(), true};
        }
        return best;
    }

    void Place(const MarkEnd& mark, const DataPointLabel& label) {
        const double value = context_.chart.SeriesValues(mark.series)[mark.category];
        const QStringList pieces = texts_.Of(label, mark.series, mark.category, value);
        const TextBlock block =
            BreakLabel(pieces, label.VtFont, label.TextLayout.Orientation, LongestLabel, context_.measurer);
        if (block.IsEmpty()) return;
        const auto found = Find(mark, PlacesAt(mark, label.LocationType, block.Extent()));
        if (!found) {
            ++omitted_;
            return;
        }
        ground_.Take(found->plate ? found->place.box.Grown(PlateRim) : found->place.box);
        DrawLabel(context_.builder, {PartCode::PointLabel, mark.series, mark.category + 1}, block, *found);
    }

    const LayoutContext& context_;
    const SpacePlan& plan_;
    const PlottedValues& plotted_;
    Ground ground_;
    LabelTexts texts_;
    int omitted_ = 0;
};

} // namespace

double HeadRoomOfSpaceLabels(const LayoutContext& context) {
    double room = 0;
    for (const Series& series : context.chart.Plot.SeriesCollection)
        if (const DataPointLabel& label = series.DataPoints.Item(DataPoints::All).DataPointLabel;
            ShowsLabel(label))
            room = std::max(room, context.measurer.Measure(QStringLiteral("0"), label.VtFont).Height() +
                                      2 * LabelGap);
    return room;
}

void LayOutSpaceLabels(const LayoutContext& context, const SpacePlan& plan, const PlottedValues& plotted,
                       const Box& box) {
    if (std::ranges::any_of(context.chart.Plot.SeriesCollection, AreAsked))
        SpaceLabels(context, plan, plotted, box).Run();
}

} // namespace QmChart6

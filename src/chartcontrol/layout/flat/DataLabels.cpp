#include "chartcontrol/layout/flat/DataLabels.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/data/XYPairs.h"
#include "chartcontrol/layout/text/LabelLines.h"
#include "chartcontrol/layout/text/LabelPlaces.h"
#include "chartcontrol/layout/text/LabelText.h"
#include "chartcontrol/layout/text/TextBlock.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace QmChart6 {

namespace {

/// Labels closer than this along the axis are not even tried. Points.
constexpr double ClosestPitch = 5;
constexpr double LongestDataLabel = 160;

/// A label that wants a place. Lower ranks are placed first.
struct Candidate {
    int series = 0;
    int category = 0;
    double value = 0;
    LabelAnchor anchor;
    int rank = 1;
};

/// A label that has one.
struct PlacedLabel {
    const Candidate* candidate = nullptr;
    TextBlock block;
    FoundPlace found;
};

/// Where all of the labels go that can be placed, and the picture's ground with them.
struct Attempt {
    Ground ground;
    std::vector<PlacedLabel> placed;
    std::vector<const Candidate*> left;
};

class Labeller {
public:
    Labeller(const PlotContext& context, const Box& room)
        : context_(context), room_(room), texts_(context.chart) {}

    void Run() {
        for (int number = 1; number <= context_.chart.Plot.SeriesCollection.Count(); ++number)
            if (IsDrawn(context_.chart, number)) Collect(number);
        if (candidates_.empty()) return;
        std::stable_sort(candidates_.begin(), candidates_.end(),
                         [](const Candidate& a, const Candidate& b) { return a.rank < b.rank; });
        const Attempt best = BestAttempt();
        for (const PlacedLabel& label : best.placed) Draw(label);
        if (!best.left.empty())
            context_.builder.Warn(QStringLiteral("%1 data labels have no room").arg(best.left.size()));
    }

private:
    /// As the labels are turned, or all upright where more fit so; then the others as they can be.
    [[nodiscard]] Attempt BestAttempt() {
        std::vector<const Candidate*> all;
        for (const Candidate& candidate : candidates_) all.push_back(&candidate);
        const Ground ground(context_.builder.Built(), room_, context_.chart.Backdrop.Fill.Brush.FillColor);
        Attempt level{ground, {}, {}};
        Place(level, all, false);
        if (level.left.empty()) return level;
        Attempt upright{ground, {}, {}};
        Place(upright, all, true);
        const bool turned = upright.left.size() < level.left.size();
        Attempt& best = turned ? upright : level;
        const std::vector<const Candidate*> rest = std::exchange(best.left, {});
        Place(best, rest, !turned);
        return std::move(best);
    }

    void Place(Attempt& attempt, const std::vector<const Candidate*>& candidates, bool upright) {
        for (const Candidate* candidate : candidates)
            if (!Place(attempt, *candidate, upright)) attempt.left.push_back(candidate);
    }

    [[nodiscard]] const Series& SeriesOf(int number) const {
        return context_.chart.Plot.SeriesCollection(number);
    }

    void Collect(int number) {
        const DataPoints& points = SeriesOf(number).DataPoints;
        if (!ShowsLabel(points.Item(DataPoints::All).DataPointLabel) && !points.HasOwn()) return;
        const std::size_t first = candidates_.size();
        if (PairsColumns(context_.chart))
            CollectXY(number);
        else
            CollectCategories(number);
        Rank(first);
    }

    void CollectXY(int number) {
        const XYPairs pairs(context_.chart, number);
        for (int i = 0; i < pairs.Count(); ++i)
            if (pairs.Has(i))
                Add(number, i, pairs.Y(i), PointAt(number, context_.area.across.At(pairs.X(i)), pairs.Y(i)));
    }

    void CollectCategories(int number) {
        const Values values = context_.chart.SeriesValues(number);
        const int stride = std::max(1, static_cast<int>(std::ceil(ClosestPitch / context_.area.slot)));
        for (int i = 0; i < values.count; i += stride)
            if (!std::isnan(values[i])) Add(number, i, values[i], AnchorOf(number, i));
    }

    void Add(int number, int category, double value, const LabelAnchor& anchor) {
        // Without a place on a logarithmic axis there is nothing to stand at.
        if (std::isnan(anchor.box.left) || std::isnan(anchor.box.top)) return;
        if (ShowsLabel(SeriesOf(number).DataPoints.Item(category + 1).DataPointLabel))
            candidates_.push_back({number, category, value, anchor, 1});
    }

    /// The ends and extremes of a series come first.
    void Rank(std::size_t first) {
        if (first == candidates_.size()) return;
        const auto begin = candidates_.begin() + static_cast<std::ptrdiff_t>(first);
        const auto less = [](const Candidate& a, const Candidate& b) { return a.value < b.value; };
        std::min_element(begin, candidates_.end(), less)->rank = 0;
        std::max_element(begin, candidates_.end(), less)->rank = 0;
        begin->rank = 0;
        candidates_.back().rank = 0;
    }

    [[nodiscard]] LabelAnchor PointAt(int number, double x, double value) const {
        const Series& series = SeriesOf(number);
        const double half =
            LineLookOf(series).markers ? series.DataPoints.Item(DataPoints::All).Marker.Size / 2 : 0;
        const double y = context_.plot.Y(number, value);
        return {{x - half, y - half, x + half, y + half}, false, value < 0};
    }

    [[nodiscard]] LabelAnchor AnchorOf(int number, int category) const {
        const double top = context_.plotted.Top(number)[category];
        if (context_.plotted.MarkOf(number) != Mark::Bar)
            return PointAt(number, context_.area.CategoryX(category), top);
        const bool down = context_.plot.Y(number, top) > context_.plot.BaseY(number, category);
        return {context_.plot.BarOf(number, category), true, down};
    }

    /// Only what runs level may be turned, and only where it is narrower so: at bars.
    bool Place(Attempt& attempt, const Candidate& candidate, bool upright) {
        const DataPointLabel& label = LabelOf(candidate);
        const bool level = label.TextLayout.Orientation == Orientation::Horizontal;
        if (upright && (!level || !candidate.anchor.isBar)) return false;
        const QStringList pieces = texts_.Of(label, candidate.series, candidate.category, candidate.value);
        TextBlock block =
            BreakLabel(pieces, label.VtFont, upright ? Orientation::Up : label.TextLayout.Orientation,
                       LongestDataLabel, context_.measurer);
        if (block.IsEmpty()) return true;
        const std::optional<FoundPlace> found =
            FindPlace(attempt.ground, candidate.anchor,
                      PlacesFor(label.LocationType, candidate.anchor, block.Extent(),
                                label.LineStyle != LabelLineStyle::None));
        if (!found) return false;
        const Box& box = found->place.box;
        attempt.ground.Take(box);
        if (found->place.stand == LabelStand::Away) attempt.ground.Draw(LineTo(candidate, box));
        attempt.placed.push_back({&candidate, std::move(block), *found});
        return true;
    }

    void Draw(const PlacedLabel& label) {
        const Candidate& candidate = *label.candidate;
        const Part part{PartCode::PointLabel, candidate.series, candidate.category + 1};
        const Box& box = label.found.place.box;
        if (label.found.place.stand == LabelStand::Away)
            AddLabelLine(context_.builder, part, LineTo(candidate, box), label.block.font.VtColor);
        DrawLabel(context_.builder, part, label.block, label.found);
    }

    [[nodiscard]] std::vector<Point> LineTo(const Candidate& candidate, const Box& box) const {
        return LabelLine(LabelOf(candidate).LineStyle, LineStart(candidate.anchor, box), box);
    }
    [[nodiscard]] const DataPointLabel& LabelOf(const Candidate& candidate) const {
        return SeriesOf(candidate.series).DataPoints.Item(candidate.category + 1).DataPointLabel;
    }

    const PlotContext& context_;
    Box room_;
    LabelTexts texts_;
    std::vector<Candidate> candidates_;
};

} // namespace

void LayOutDataLabels(const PlotContext& context, const Box& room) {
    Labeller(context, room).Run();
}

} // namespace QmChart6

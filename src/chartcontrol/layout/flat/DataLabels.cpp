#include "chartcontrol/layout/flat/DataLabels.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/data/XYPairs.h"
#include "chartcontrol/layout/text/LabelLines.h"
#include "chartcontrol/layout/text/LabelPlaces.h"
#include "chartcontrol/layout/text/LabelText.h"
#include "chartcontrol/layout/text/Occupancy.h"
#include "chartcontrol/layout/text/TextBlock.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// Labels closer than this along the axis are not even tried. Points.
constexpr double ClosestPitch = 5;
constexpr double LongestDataLabel = 160;
constexpr int MostLines = 3;

/// A label that wants a place. Lower ranks are placed first.
struct Candidate {
    int series = 0;
    int category = 0;
    double value = 0;
    LabelAnchor anchor;
    int rank = 1;
};

class Labeller {
public:
    explicit Labeller(const PlotContext& context)
        : context_(context), taken_(context.area.box.Grown(1)), texts_(context.chart) {}

    void Run() {
        for (int number = 1; number <= context_.chart.Plot.SeriesCollection.Count(); ++number)
            if (IsDrawn(context_.chart, number)) Collect(number);
        std::stable_sort(candidates_.begin(), candidates_.end(),
                         [](const Candidate& a, const Candidate& b) { return a.rank < b.rank; });
        int omitted = 0;
        for (const Candidate& candidate : candidates_)
            if (!Place(candidate)) ++omitted;
        if (omitted > 0) context_.builder.Warn(QStringLiteral("%1 data labels have no room").arg(omitted));
    }

private:
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

    bool Place(const Candidate& candidate) {
        const DataPoint& look = SeriesOf(candidate.series).DataPoints.Item(candidate.category + 1);
        const DataPointLabel& label = look.DataPointLabel;
        const QString text = texts_.Of(label, candidate.series, candidate.category, candidate.value);
        TextBlock block = BreakText(text, label.VtFont, label.TextLayout.Orientation,
                                    {LongestDataLabel, MostLines}, context_.measurer);
        const bool withLine = label.LineStyle != LabelLineStyle::None;
        for (const LabelPlace& place :
             PlacesFor(label.LocationType, candidate.anchor, block.Extent(), withLine)) {
            if (!taken_.Take(place.box)) continue;
            const Part part{PartCode::PointLabel, candidate.series, candidate.category + 1};
            if (place.away)
                AddLabelLine(context_.builder, part, label.LineStyle, From(candidate.anchor, place.box),
                             place.box, label.VtFont.VtColor);
            const bool onBar = candidate.anchor.isBar && candidate.anchor.box.Contains(place.box.Center());
            if (onBar) block.font = ReadableFont(block.font, look.Brush.FillColor);
            PlaceText(context_.builder, part, block, place.box, HorizontalAlignment::Center,
                      VerticalAlignment::Center);
            return true;
        }
        return false;
    }

    static Point From(const LabelAnchor& anchor, const Box& label) {
        const double x = anchor.box.Center().x;
        return {x, label.Center().y < anchor.box.Center().y ? anchor.box.top : anchor.box.bottom};
    }

    const PlotContext& context_;
    Occupancy taken_;
    LabelTexts texts_;
    std::vector<Candidate> candidates_;
};

} // namespace

void LayOutDataLabels(const PlotContext& context) {
    Labeller(context).Run();
}

} // namespace QmChart6

#include "chartcontrol/layout/DataLabels.h"

#include "chartcontrol/layout/BarCluster.h"
#include "chartcontrol/layout/LabelText.h"
#include "chartcontrol/layout/Occupancy.h"
#include "chartcontrol/layout/SeriesLook.h"
#include "chartcontrol/layout/TextBlock.h"
#include "chartcontrol/layout/XYPairs.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// From mark to label, in points.
constexpr double Gap = 2.5;
/// Labels closer than this along the axis are not even tried.
constexpr double ClosestPitch = 5;
constexpr double LongestLabel = 160;

/// What a label belongs to: the bar, or the point as an empty box; and its value's sign.
struct Anchor {
    Box box;
    bool isBar = false;
    bool negative = false;
};

Box CenteredAt(double x, double y, const Size& size) {
    return {x - size.width / 2, y - size.height / 2, x + size.width / 2, y + size.height / 2};
}

Box PlaceFor(LabelLocation location, const Anchor& anchor, const Size& size) {
    const Box& box = anchor.box;
    const Point middle = box.Center();
    const double above = box.top - Gap - size.height / 2;
    const double below = box.bottom + Gap + size.height / 2;
    switch (location) {
    case LabelLocation::AbovePoint:
    case LabelLocation::Outside:
        return CenteredAt(middle.x, anchor.isBar && anchor.negative ? below : above, size);
    case LabelLocation::BelowPoint:
        if (!anchor.isBar) return CenteredAt(middle.x, below, size);
        // Below a bar's point is within the bar, at its end.
        return CenteredAt(
            middle.x, anchor.negative ? box.bottom - Gap - size.height / 2 : box.top + Gap + size.height / 2,
            size);
    case LabelLocation::Base:
        if (!anchor.isBar) return CenteredAt(middle.x, below, size);
        return CenteredAt(
            middle.x, anchor.negative ? box.top + Gap + size.height / 2 : box.bottom - Gap - size.height / 2,
            size);
    case LabelLocation::Left:
        return CenteredAt(box.left - Gap - size.width / 2, middle.y, size);
    case LabelLocation::Right:
        return CenteredAt(box.right + Gap + size.width / 2, middle.y, size);
    case LabelLocation::None:
    case LabelLocation::Center:
    case LabelLocation::Inside:
        break;
    }
    return CenteredAt(middle.x, middle.y, size);
}

class Labeller {
public:
    Labeller(const LayoutContext& context, const PlotArea& area, const std::vector<int>& bars)
        : context_(context), area_(area), bars_(bars), room_(area.box.Grown(1)), taken_(room_),
          texts_(context.chart),
          cluster_(ClusterOf(context.chart.Plot, area, std::max(1, static_cast<int>(bars.size())))) {}

    void Label(int number) {
        const Series& series = context_.chart.Plot.SeriesCollection(number);
        if (!ShowsLabel(series.DataPoints.Item(DataPoints::All).DataPointLabel) &&
            !series.DataPoints.HasOwn())
            return;
        if (MarkKindOf(context_.chart, number) == MarkKind::XY) {
            const XYPairs pairs(context_.chart, number);
            for (int i = 0; i < pairs.Count(); ++i)
                if (pairs.Has(i))
                    One(number, i, pairs.Y(i), PointAt(area_.across.At(pairs.X(i)), number, pairs.Y(i)));
            return;
        }
        const Values values = context_.chart.SeriesValues(number);
        const int stride = std::max(1, static_cast<int>(std::ceil(ClosestPitch / area_.slot)));
        for (int i = 0; i < values.count; i += stride)
            if (!std::isnan(values[i])) One(number, i, values[i], AnchorOf(number, i, values[i]));
    }

    void WarnOfOmitted() const {
        if (omitted_ > 0) context_.builder.Warn(QStringLiteral("%1 data labels have no room").arg(omitted_));
    }

private:
    [[nodiscard]] Anchor PointAt(double x, int number, double value) const {
        const Series& series = context_.chart.Plot.SeriesCollection(number);
        const LineLook look = LineLookOf(series);
        const double half = look.markers ? series.DataPoints.Item(DataPoints::All).Marker.Size / 2 : 0;
        const double y = area_.MapOf(series).At(value);
        return {{x - half, y - half, x + half, y + half}, false, value < 0};
    }

    [[nodiscard]] Anchor AnchorOf(int number, int category, double value) const {
        const double x = area_.CategoryX(category);
        const auto bar = std::find(bars_.begin(), bars_.end(), number);
        if (bar == bars_.end()) return PointAt(x, number, value);
        const LinearMap& map = area_.MapOf(context_.chart.Plot.SeriesCollection(number));
        const double left = x + cluster_.left + static_cast<double>(bar - bars_.begin()) * cluster_.pitch;
        const double base = PlotArea::BaseOf(map);
        const double y = map.At(value);
        return {{left, std::min(y, base), left + cluster_.barWidth, std::max(y, base)}, true, value < 0};
    }

    void One(int number, int category, double value, const Anchor& anchor) {
        const DataPoint& look = context_.chart.Plot.SeriesCollection(number).DataPoints.Item(category + 1);
        const DataPointLabel& label = look.DataPointLabel;
        if (!ShowsLabel(label)) return;
        const QString text = texts_.Of(label, number, category, value);
        TextBlock block =
            BreakText(text, label.VtFont, label.TextLayout.Orientation, {LongestLabel, 3}, context_.measurer);
        const Box place = PlaceFor(label.LocationType, anchor, block.Extent());
        if (!taken_.Take(place)) {
            ++omitted_;
            return;
        }
        const bool onBar = anchor.isBar && anchor.box.Contains(place.Center());
        if (onBar) block.font = ReadableFont(block.font, look.Brush.FillColor);
        PlaceText(context_.builder, {PartCode::PointLabel, number, category + 1}, block, place,
                  HorizontalAlignment::Center, VerticalAlignment::Center);
    }

    const LayoutContext& context_;
    const PlotArea& area_;
    const std::vector<int>& bars_;
    Box room_;
    Occupancy taken_;
    LabelTexts texts_;
    BarCluster cluster_;
    int omitted_ = 0;
};

} // namespace

void LayOutDataLabels(const LayoutContext& context, const PlotArea& area, const std::vector<int>& bars) {
    Labeller labeller(context, area, bars);
    for (int number = 1; number <= context.chart.Plot.SeriesCollection.Count(); ++number)
        if (IsDrawn(context.chart, number)) labeller.Label(number);
    labeller.WarnOfOmitted();
}

} // namespace QmChart6

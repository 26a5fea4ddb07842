#include "chartcontrol/layout/Layout.h"

#include "chartcontrol/layout/data/DarkGround.h"
#include "chartcontrol/layout/data/LayoutContext.h"
#include "chartcontrol/layout/flat/CartesianLayout.h"
#include "chartcontrol/layout/flat/DirectNames.h"
#include "chartcontrol/layout/pie/PieLayout.h"
#include "chartcontrol/layout/space/SpaceLayout.h"
#include "chartcontrol/layout/text/BackdropLayout.h"
#include "chartcontrol/layout/text/LegendLayout.h"
#include "chartcontrol/layout/text/TitleLayout.h"
#include "chartcontrol/model/ChartKinds.h"

#include <algorithm>
#include <utility>

namespace QmChart6 {

namespace {

/// The margin round everything, in points; less in charts that are small.
constexpr double Margin = 12;
constexpr double MarginShare = 0.03;

Box PlotBox(const Chart& chart, const Box& free, const Box& whole) {
    if (chart.Plot.AutoLayout) return free;
    const CoordinateRect& rect = chart.Plot.LocationRect;
    const Box asked{std::min(rect.Min.X, rect.Max.X), std::min(rect.Min.Y, rect.Max.Y),
                    std::max(rect.Min.X, rect.Max.X), std::max(rect.Min.Y, rect.Max.Y)};
    return {std::clamp(asked.left, whole.left, whole.right), std::clamp(asked.top, whole.top, whole.bottom),
            std::clamp(asked.right, whole.left, whole.right),
            std::clamp(asked.bottom, whole.top, whole.bottom)};
}

PointPlaces LayOutPlot(const LayoutContext& context, const Box& box) {
    const ChartKind& kind = KindOf(context.chart.chartType());
    switch (kind.form) {
    case ChartForm::Pies:
        return PointPlaces(LayOutPies(context, box));
    case ChartForm::Space:
        return PointPlaces(LayOutSpace(context, box));
    case ChartForm::Flat:
        break;
    }
    PlottedArea plot = LayOutCartesian(context, box);
    return kind.pairsColumns ? PointPlaces(PairPlaces(std::move(plot)))
                             : PointPlaces(FlatPlaces(std::move(plot)));
}

/// A legend that is asked for; or one in place of names that do not fit at the ends of their lines.
bool NeedsLegend(const LayoutContext& context, const Box& free) {
    if (context.chart.ShowLegend) return true;
    const bool named = context.chart.Plot.DirectNames && context.chart.Plot.SeriesCollection.Count() > 1;
    return named && !(DirectNamesWidth(context, free) > 0);
}

LaidOutChart LayOutDressed(const Chart& chart, const LayoutRequest& request, const TextMeasurer& measurer) {
    LaidOutChart laidOut;
    laidOut.scene.size = request.size;
    if (!(request.size.width >= 1 && request.size.height >= 1)) return laidOut;
    SceneBuilder builder(laidOut.scene);
    const LayoutContext context{chart, request, measurer, builder};
    const Box whole{0, 0, request.size.width, request.size.height};
    LayOutBackdrop(builder, {PartCode::Chart}, chart.Backdrop, whole);
    const double margin = std::min(Margin, MarginShare * std::min(request.size.width, request.size.height));
    Box free = whole.Grown(-(FrameDepth(chart.Backdrop.Frame) + margin));
    LayOutTitle(context, chart.Title, PartCode::Title, free);
    LayOutTitle(context, chart.Footnote, PartCode::Footnote, free);
    if (NeedsLegend(context, free)) LayOutLegend(context, free);
    const Box box = PlotBox(chart, free, whole);
    if (box.Width() < 1 || box.Height() < 1) {
        builder.Warn(QStringLiteral("the chart is too small for its plot"));
        return laidOut;
    }
    laidOut.places = LayOutPlot(context, box);
    return laidOut;
}

} // namespace

LaidOutChart LayOut(const Chart& chart, const LayoutRequest& request, const TextMeasurer& measurer) {
    const std::optional<Chart> dressed = DressedForDark(chart);
    return LayOutDressed(dressed ? *dressed : chart, request, measurer);
}

} // namespace QmChart6

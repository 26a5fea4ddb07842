#include "chartcontrol/layout/Layout.h"

#include "chartcontrol/layout/data/DressedChart.h"
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
#include <iterator>
#include <optional>
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

/// Names at the ends of lines, where they fit beside the plot, make a legend needless that nobody asked for.
bool NeedsLegend(const LayoutContext& context, const Box& plot) {
    return context.chart.ShowLegend && !(DirectNamesWidth(context, plot) > 0);
}

/// What of title, footnote and legend is drawn; a small picture does without some, so that it shows the plot.
enum class Surroundings { All, NoLegend, None };

/// Less room than this is too little for a plot that has other things round it. Points.
constexpr Size LeastPlot{24, 16};
/// So is less than this part of the picture.
constexpr double LeastShare = 0.4;

/// What was placed by hand may stand over the plot, and is on top there.
void BringToFront(Scene& scene, PartCode code) {
    const auto isOfIt = [code](const Shape& shape) { return shape.part.code == code; };
    std::vector<Shape> front;
    std::copy_if(scene.shapes.begin(), scene.shapes.end(), std::back_inserter(front), isOfIt);
    std::erase_if(scene.shapes, isOfIt);
    for (Shape& shape : front) scene.shapes.push_back(std::move(shape));
}

void BringWhatWasPlacedToFront(Scene& scene, const Chart& chart) {
    const auto isPlaced = [](const auto& part) { return part.Location.LocationType == LocationType::Custom; };
    if (isPlaced(chart.Legend)) BringToFront(scene, PartCode::Legend);
    if (isPlaced(chart.Footnote)) BringToFront(scene, PartCode::Footnote);
    if (isPlaced(chart.Title)) BringToFront(scene, PartCode::Title);
}

/// Nothing where what stands round the plot would leave too little of it.
std::optional<LaidOutChart> LayOutWith(const Chart& chart, const LayoutRequest& request,
                                       const TextMeasurer& measurer, Surroundings around) {
    LaidOutChart laidOut;
    laidOut.scene.size = request.size;
    SceneBuilder builder(laidOut.scene);
    const LayoutContext context{chart, request, measurer, builder};
    const Box whole{0, 0, request.size.width, request.size.height};
    LayOutBackdrop(builder, {PartCode::Chart}, chart.Backdrop, whole);
    const double margin = std::min(Margin, MarginShare * std::min(request.size.width, request.size.height));
    Box free = whole.Grown(-(FrameDepth(chart.Backdrop.Frame) + margin));
    if (around != Surroundings::None) {
        LayOutTitle(context, chart.Title, PartCode::Title, free);
        LayOutTitle(context, chart.Footnote, PartCode::Footnote, free);
    }
    if (around == Surroundings::All && NeedsLegend(context, PlotBox(chart, free, whole)))
        LayOutLegend(context, free);
    const Box box = PlotBox(chart, free, whole);
    const bool isSmall =
        chart.Plot.AutoLayout && (box.Width() < std::max(LeastPlot.width, LeastShare * whole.Width()) ||
                                  box.Height() < std::max(LeastPlot.height, LeastShare * whole.Height()));
    if (isSmall && around != Surroundings::None) return std::nullopt;
    if (around != Surroundings::All)
        builder.Warn(QStringLiteral("the chart is too small for what stands round its plot"));
    if (box.Width() < 1 || box.Height() < 1) {
        builder.Warn(QStringLiteral("the chart is too small for its plot"));
        return laidOut;
    }
    laidOut.places = LayOutPlot(context, box);
    BringWhatWasPlacedToFront(laidOut.scene, chart);
    return laidOut;
}

} // namespace

LaidOutChart LayOut(const Chart& chart, const LayoutRequest& request, const TextMeasurer& measurer) {
    if (!(request.size.width >= 1 && request.size.height >= 1)) return {{request.size, {}, {}, {}, {}}, {}};
    const std::optional<Chart> dressed = DressedForGround(chart);
    const Chart& drawn = dressed ? *dressed : chart;
    for (const Surroundings around : {Surroundings::All, Surroundings::NoLegend})
        if (auto laidOut = LayOutWith(drawn, request, measurer, around)) return std::move(*laidOut);
    return LayOutWith(drawn, request, measurer, Surroundings::None).value();
}

} // namespace QmChart6

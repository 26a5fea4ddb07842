#include "chartcontrol/layout/flat/DirectNames.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/text/Spread.h"
#include "chartcontrol/layout/text/TextBlock.h"
#include "chartcontrol/model/ColourContrast.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// From the plot to the names, in points: room for a line that leads to a name that was moved.
constexpr double GapBefore = 12;
constexpr double LineStart = 2;
constexpr double LineEnd = 3;
constexpr double LeaderWidth = 0.6;
/// A name that was moved farther than this part of its height has a line that leads to it.
constexpr double FarWithoutLine = 0.4;
constexpr std::size_t MostNames = 14;
/// The names take at most this part of the box.
constexpr double WidestNamesShare = 0.32;
constexpr double HighestNamesShare = 0.8;

struct EndName {
    int series = 0;
    TextBlock block;
    double y = 0; // of the series' end
};

bool IsNamedAtItsEnd(Mark mark) {
    return mark == Mark::Line || mark == Mark::Step || mark == Mark::Area;
}

bool AreAsked(const Chart& chart) {
    const int count = chart.Plot.SeriesCollection.Count();
    const ChartKind& kind = KindOf(chart.chartType());
    const bool hasLegend = chart.ShowLegend && !chart.LegendFollowsData;
    if (!chart.Plot.DirectNames || hasLegend || count < 2 || chart.CategoryCount() < 2) return false;
    if (kind.form != ChartForm::Flat || kind.pairsColumns) return false;
    for (int number = 1; number <= count; ++number)
        if (!IsNamedAtItsEnd(MarkOfSeries(chart, number)) ||
            chart.Plot.SeriesCollection(number).SecondaryAxis)
            return false;
    return chart.Plot.Axis(AxisId::SecondaryY).AxisScale.Hide;
}

TextBlock BlockOf(const LayoutContext& context, int series) {
    const QString name = Printable(context.chart.SeriesName(series)).simplified();
    return BreakText(name, context.chart.Legend.VtFont, Orientation::Horizontal, {1e6, 1}, context.measurer);
}

/// The last category that has a value, from 0; -1 without any.
int LastOf(const Values& values) {
    int last = values.count - 1;
    while (last >= 0 && std::isnan(values[last])) --last;
    return last;
}

/// Where a series ends: at its last point, of a band in a pile at the band's middle.
double EndOf(const PlotContext& context, int number, int last) {
    const double top = context.plot.Y(number, context.plotted.Top(number)[last]);
    const bool isBand = context.plotted.MarkOf(number) == Mark::Area && context.plotted.IsStacked();
    return isBand ? (top + context.plot.BaseY(number, last)) / 2 : top;
}

void Draw(const PlotContext& context, const EndName& name, double y, double left) {
    const Chart& chart = context.chart;
    const Colour ground = chart.Backdrop.Fill.Brush.FillColor;
    const Colour colour =
        ShownColour(chart, chart.Plot.SeriesCollection(name.series).DataPoints.Item(DataPoints::All).Brush);
    const Part part{PartCode::Legend, name.series};
    TextBlock block = name.block;
    block.font.VtColor = WithContrast(colour, ground, TextContrast);
    if (std::abs(y - name.y) > FarWithoutLine * block.Depth()) {
        const double from = left - GapBefore + LineStart;
        context.builder.AddPoint({from, name.y});
        context.builder.AddPoint({left - LineEnd, y});
        context.builder.AddPolyline(part, {PenStyle::Solid, LeaderWidth, colour});
    }
    PlaceText(context.builder, part, block, {left, y, left, y}, HorizontalAlignment::Left,
              VerticalAlignment::Center);
}

} // namespace

double DirectNamesWidth(const LayoutContext& context, const Box& box) {
    if (!AreAsked(context.chart)) return 0;
    const int count = context.chart.Plot.SeriesCollection.Count();
    if (static_cast<std::size_t>(count) > MostNames) return 0;
    double width = 0;
    double height = 0;
    for (int number = 1; number <= count; ++number) {
        const TextBlock block = BlockOf(context, number);
        if (block.IsEmpty() || LastOf(context.chart.SeriesValues(number)) < 0) return 0;
        width = std::max(width, block.Length());
        height += block.Depth();
    }
    const bool fits = width <= WidestNamesShare * box.Width() && height <= HighestNamesShare * box.Height();
    return fits ? width + GapBefore : 0;
}

void LayOutDirectNames(const PlotContext& context) {
    const Box& box = context.area.box; // below it stand the names of categories
    std::vector<EndName> names;
    for (int number = 1; number <= context.plotted.SeriesCount(); ++number) {
        const int last = LastOf(context.plotted.Top(number));
        const double end = last < 0 ? 0 : EndOf(context, number, last);
        // What is not above zero has no place on a logarithmic axis.
        if (last >= 0 && !std::isnan(end)) names.push_back({number, BlockOf(context, number), end});
    }
    std::stable_sort(names.begin(), names.end(),
                     [](const EndName& one, const EndName& other) { return one.y < other.y; });
    std::vector<SpreadPiece> pieces;
    for (const EndName& name : names)
        pieces.push_back({name.block.Depth(), std::clamp(name.y, box.top, box.bottom)});
    const std::vector<double> middles = SpreadOut(pieces, box.top, box.bottom);
    for (std::size_t i = 0; i < names.size(); ++i)
        Draw(context, names[i], middles[i], context.area.box.right + GapBefore);
}

} // namespace QmChart6

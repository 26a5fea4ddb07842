#include "chartcontrol/layout/flat/StatisticsLines.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/data/Statistics.h"
#include "chartcontrol/layout/data/XYPairs.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace QmChart6 {

namespace {

/// The statistics of a series over the x that its points are drawn at: numbers of categories from 1, or an XY
/// pair's x.
Statistics StatisticsOf(const Chart& chart, int number) {
    Statistics statistics;
    if (PairsColumns(chart)) {
        const XYPairs pairs(chart, number);
        for (int i = 0; i < pairs.Count(); ++i)
            if (pairs.Has(i)) statistics.Add(pairs.X(i), pairs.Y(i));
        return statistics;
    }
    const Values values = chart.SeriesValues(number);
    for (int i = 0; i < values.count; ++i)
        if (!std::isnan(values[i])) statistics.Add(i + 1, values[i]);
    return statistics;
}

/// How much wider the rim of a statistics line is than the line, in points.
constexpr double Rim = 1.5;
/// A line on the edge of the plot, but for rounding.
constexpr double OnEdge = 1e-6;
/// A curve is drawn in so many straight pieces.
constexpr int CurvePieces = 96;

class SeriesLines {
public:
    SeriesLines(const PlotContext& context, int number)
        : context_(context), number_(number), line_(context.chart.Plot.SeriesCollection(number).StatLine),
          statistics_(StatisticsOf(context.chart, number)) {}

    void Run() {
        if (statistics_.Count() == 0) return;
        if (Asked(StatMinimum)) Level(statistics_.Minimum(), PenStyle::Dotted);
        if (Asked(StatMaximum)) Level(statistics_.Maximum(), PenStyle::Dashed);
        if (Asked(StatMean)) Level(statistics_.Mean(), PenStyle::LongDashed);
        if (Asked(StatStandardDeviation) && statistics_.Count() > 1) {
            Level(statistics_.Mean() + statistics_.StandardDeviation(), PenStyle::DashDotted);
            Level(statistics_.Mean() - statistics_.StandardDeviation(), PenStyle::DashDotted);
        }
        if (Asked(StatRegression) && statistics_.HasSlope()) Regression();
    }

private:
    [[nodiscard]] bool Asked(int flag) const { return (line_.Flag & flag) != 0; }
    [[nodiscard]] double PlaceOf(double x) const {
        const PlotArea& area = context_.area;
        return PairsColumns(context_.chart) ? area.across.At(x) : area.CategoryX(0) + (x - 1) * area.slot;
    }
    /// Lines that leave the plot are cut at its edge.
    void Add(const std::vector<Point>& points, PenStyle style) {
        const Box& plot = context_.area.box;
        const bool leaves =
            !std::ranges::all_of(points, [&](Point point) { return plot.Grown(OnEdge).Contains(point); });
        if (leaves) context_.builder.SetClip(plot);
        // On bars and areas of its own colour the line would not be seen without a rim.
        const Colour ground = context_.chart.Backdrop.Fill.Brush.FillColor;
        if (KindOf(MarkOfSeries(context_.chart, number_)).isFilled)
            AddStroke(points, {PenStyle::Solid, line_.Width + Rim, ground});
        AddStroke(points, {style, line_.Width, line_.VtColor});
    }
    void AddStroke(const std::vector<Point>& points, const Stroke& stroke) {
        for (const Point& point : points) context_.builder.AddPoint(point);
        context_.builder.AddPolyline({PartCode::Statistics, number_}, stroke);
    }
    void Level(double value, PenStyle style) {
        const double y = context_.plot.Y(number_, value);
        const Box& plot = context_.area.box;
        if (plot.Grown(OnEdge).Contains({plot.left, y})) Add({{plot.left, y}, {plot.right, y}}, style);
    }
    [[nodiscard]] Point Fitted(double x) const {
        return {PlaceOf(x), context_.plot.Y(number_, statistics_.Fitted(x))};
    }
    /// Straight on linear axes; where one is logarithmic a curve, which ends where it is no longer above
    /// zero.
    void Regression() {
        const AxisMap& across = context_.area.across;
        const bool bends = context_.plot.MapOf(number_).IsLogarithmic() ||
                           (PairsColumns(context_.chart) && across.IsLogarithmic());
        const int pieces = bends ? CurvePieces : 1;
        std::vector<Point> points;
        for (int i = 0; i <= pieces; ++i) {
            const Point point = Fitted(XAt(static_cast<double>(i) / pieces));
            if (!std::isnan(point.x) && !std::isnan(point.y)) points.push_back(point);
        }
        if (points.size() > 1) Add(points, PenStyle::Solid);
    }
    /// The x of a part of the way from the first to the last, in even steps on the page.
    [[nodiscard]] double XAt(double part) const {
        const double first = statistics_.FirstX();
        const double last = statistics_.LastX();
        const AxisMap& across = context_.area.across;
        const bool bends = PairsColumns(context_.chart) && across.IsLogarithmic() && first > 0;
        if (bends && part > 0 && part < 1)
            return across.ValueAt(across.At(first) * (1 - part) + across.At(last) * part);
        return first * (1 - part) + last * part;
    }

    const PlotContext& context_;
    int number_;
    const StatLine& line_;
    Statistics statistics_;
};

} // namespace

void LayOutStatistics(const PlotContext& context) {
    if (context.plotted.IsChanged()) return;
    for (int number = 1; number <= context.chart.Plot.SeriesCollection.Count(); ++number)
        if (IsDrawn(context.chart, number) && context.chart.Plot.SeriesCollection(number).StatLine.Flag != 0)
            SeriesLines(context, number).Run();
}

} // namespace QmChart6

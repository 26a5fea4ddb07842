#include "chartcontrol/layout/flat/StatisticsLines.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/data/Statistics.h"
#include "chartcontrol/layout/data/XYPairs.h"

#include <cmath>

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
    void Add(Point from, Point to, PenStyle style) {
        const Part part{PartCode::Statistics, number_};
        // On bars and areas of its own colour the line would not be seen without a rim.
        const Colour ground = context_.chart.Backdrop.Fill.Brush.FillColor;
        if (KindOf(MarkOfSeries(context_.chart, number_)).isFilled)
            context_.builder.AddLine(part, from, to, {PenStyle::Solid, line_.Width + Rim, ground}, false);
        context_.builder.AddLine(part, from, to, {style, line_.Width, line_.VtColor}, false);
    }
    void Level(double value, PenStyle style) {
        const double y = context_.plot.Y(number_, value);
        Add({context_.area.box.left, y}, {context_.area.box.right, y}, style);
    }
    void Regression() {
        const double first = statistics_.FirstX();
        const double last = statistics_.LastX();
        Add({PlaceOf(first), context_.plot.Y(number_, statistics_.Fitted(first))},
            {PlaceOf(last), context_.plot.Y(number_, statistics_.Fitted(last))}, PenStyle::Solid);
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

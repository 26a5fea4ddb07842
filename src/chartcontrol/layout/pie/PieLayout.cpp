#include "chartcontrol/layout/pie/PieLayout.h"
#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/data/Sums.h"
#include "chartcontrol/layout/pie/PieLabels.h"
#include "chartcontrol/layout/text/LabelPlaces.h"
#include "chartcontrol/layout/text/LabelText.h"
#include "chartcontrol/layout/text/TextBlock.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace QmChart6 {

namespace {

/// Points: from pie to pie, from its name to a pie, and the smallest pie that can still be read.
constexpr double PieGap = 12;
constexpr double NameGap = 4;
constexpr double SmallestPie = 14;
/// Labels outside take at most this part of a pie's cell on each side.
constexpr double LargestReachShare = 0.28;
/// Labels outside do not make a pie smaller than this; those that then have no room are left out.
constexpr double SmallestLabelledPie = 36;
constexpr double TurnStart = 90;

/// The room on each side of a pie for labels that reach so far, in a cell's width or height.
double ReachWithin(double wished, double cell, double free) {
    return std::min({wished, LargestReachShare * cell, std::max(0.0, (free - SmallestLabelledPie) / 2)});
}

struct PieGrid {
    int columns = 1;
    int rows = 1;
    int shown = 0;
    Size cell;
    double nameHeight = 0;
    Size reach; // of the labels outside
    double diameter = 0;
};

class PiesLayout {
public:
    PiesLayout(const LayoutContext& context, const Box& box)
        : context_(context), chart_(context.chart), box_(box), texts_(context.chart),
          nameFont_(chart_.Plot.Axis(AxisId::X).Labels.Item(1).VtFont),
          places_(chart_.Plot.SeriesCollection.Count(), chart_.CategoryCount()) {}

    PiePlaces Run() {
        grid_ = ChooseGrid();
        if (grid_.shown < chart_.CategoryCount())
            Warn(QStringLiteral("%1 of %2 pies have no room")
                     .arg(chart_.CategoryCount() - grid_.shown)
                     .arg(chart_.CategoryCount()));
        for (int category = 0; category < grid_.shown; ++category) Pie(category);
        LayOutLabels();
        if (negatives_ > 0) Warn(QStringLiteral("%1 negative values have no slice").arg(negatives_));
        if (zeros_ > 0) Warn(QStringLiteral("%1 zeros have no slice").arg(zeros_));
        if (omittedLabels_ > 0) Warn(QStringLiteral("%1 data labels have no room").arg(omittedLabels_));
        return std::move(places_);
    }

private:
    void Warn(const QString& sentence) { context_.builder.Warn(sentence); }

    [[nodiscard]] SubPlotLabelPosition NamePosition() const { return chart_.Plot.SubPlotLabelPosition; }

    /// The labels of a category's slices, those inside or those outside.
    [[nodiscard]] std::vector<PieLabel> Labels(int category, bool inside) {
        std::vector<PieLabel> labels;
        const double sum = ScaledSumOf(category);
        if (!(sum > 0)) return labels;
        double before = 0;
        for (int number = 1; number <= chart_.Plot.SeriesCollection.Count(); ++number) {
            const double value = chart_.SeriesValues(number)[category];
            if (!(value > 0)) continue;
            const DataPoint& look = chart_.Plot.SeriesCollection(number).DataPoints.Item(category + 1);
            const LabelLocation location = look.DataPointLabel.LocationType;
            const bool isInside = location == LabelLocation::Inside || location == LabelLocation::Center;
            const double share = ShareOf(number, category, sum);
            const bool isWanted = ShowsLabel(look.DataPointLabel) && isInside == inside;
            const QStringList pieces =
                isWanted ? texts_.WithShare(look.DataPointLabel, number, value, share) : QStringList();
            if (!pieces.isEmpty())
                labels.push_back({{PartCode::PointLabel, number, category + 1},
                                  {PartCode::Series, number, category + 1},
                                  pieces,
                                  before + share / 2,
                                  share,
                                  &look});
            before += share;
        }
        return labels;
    }

    /// How far any pie's labels outside reach; pies are as large as each other.
    [[nodiscard]] Size WidestReach() {
        constexpr int mostLookedAt = 64;
        Size reach;
        for (int category = 0; category < std::min(mostLookedAt, chart_.CategoryCount()); ++category) {
            const Size one = OutsideReach(Labels(category, false), context_.measurer);
            reach = {std::max(reach.width, one.width), std::max(reach.height, one.height)};
        }
        return reach;
    }

    [[nodiscard]] bool HasNames() const {
        if (NamePosition() == SubPlotLabelPosition::None) return false;
        for (int category = 1; category <= chart_.CategoryCount(); ++category)
            if (!chart_.CategoryName(category).isEmpty()) return true;
        return false;
    }

    [[nodiscard]] PieGrid GridOf(int pies, int columns, double nameHeight, const Size& reach) const {
        PieGrid grid;
        grid.columns = columns;
        grid.rows = (pies + columns - 1) / columns;
        grid.shown = pies;
        grid.cell = {(box_.Width() + PieGap) / grid.columns - PieGap,
                     (box_.Height() + PieGap) / grid.rows - PieGap};
        grid.nameHeight = nameHeight;
        const double free = grid.cell.height - nameHeight;
        grid.reach = {ReachWithin(reach.width, grid.cell.width, grid.cell.width),
                      ReachWithin(reach.height, grid.cell.height, free)};
        grid.diameter = std::min(grid.cell.width - 2 * grid.reach.width, free - 2 * grid.reach.height);
        return grid;
    }

    /// The number of columns that gives the largest pies; as many pies as can be read.
    [[nodiscard]] PieGrid ChooseGrid() {
        const double lineHeight = context_.measurer.Measure(QStringLiteral("x"), nameFont_).Height();
        const bool besides = HasNames() && NamePosition() != SubPlotLabelPosition::Center;
        const double nameHeight = besides ? lineHeight + NameGap : 0;
        const int most =
            std::max(1, static_cast<int>((box_.Width() + PieGap) / (SmallestPie + PieGap))) *
            std::max(1, static_cast<int>((box_.Height() + PieGap) / (SmallestPie + nameHeight + PieGap)));
        const int pies = std::min(chart_.CategoryCount(), most);
        const Size reach = WidestReach();
        PieGrid best = GridOf(pies, 1, nameHeight, reach);
        for (int columns = 2; columns <= pies; ++columns) {
            const PieGrid grid = GridOf(pies, columns, nameHeight, reach);
            if (grid.diameter > best.diameter + 1e-6) best = grid;
        }
        return best;
    }

    void Pie(int category) {
        const int row = category / grid_.columns;
        const int inRow = std::min(grid_.columns, grid_.shown - row * grid_.columns);
        // A last row that is not full stands in the middle.
        const double indent = (grid_.columns - inRow) * (grid_.cell.width + PieGap) / 2;
        const double left = box_.left + indent + (category % grid_.columns) * (grid_.cell.width + PieGap);
        const double top = box_.top + row * (grid_.cell.height + PieGap);
        const bool above = NamePosition() == SubPlotLabelPosition::Above;
        const double pieTop = top + (above ? grid_.nameHeight : 0);
        const Point center{left + grid_.cell.width / 2, pieTop + (grid_.cell.height - grid_.nameHeight) / 2};
        const Box cell{left, pieTop, left + grid_.cell.width, pieTop + grid_.cell.height - grid_.nameHeight};
        Slices(category, center);
        Name(category, center);
        circles_.push_back({center, grid_.diameter / 2, cell});
    }

    /// Once all pies and their names stand. Labels that have no room on their slice go outside.
    void LayOutLabels() {
        std::vector<std::vector<PieLabel>> inside;
        std::vector<std::vector<PieLabel>> outside;
        bool any = false;
        for (int category = 0; category < grid_.shown; ++category) {
            inside.push_back(Labels(category, true));
            outside.push_back(Labels(category, false));
            any = any || !inside.back().empty() || !outside.back().empty();
        }
        if (!any) return;
        Ground ground(context_.builder.Built(), box_, chart_.Backdrop.Fill.Brush.FillColor);
        for (std::size_t pie = 0; pie < circles_.size(); ++pie) {
            std::vector<PieLabel>& rest = outside[pie];
            const std::vector<PieLabel> moved = PlaceInside(context_, inside[pie], circles_[pie], ground);
            rest.insert(rest.end(), moved.begin(), moved.end());
            omittedLabels_ += PlaceOutside(context_, rest, circles_[pie], ground);
        }
    }

    [[nodiscard]] double ScaledSumOf(int category) const {
        double sum = 0;
        for (int series = 1; series <= chart_.Plot.SeriesCollection.Count(); ++series) {
            const double value = chart_.SeriesValues(series)[category];
            if (value > 0) sum += value * SumUnit;
        }
        return sum;
    }

    [[nodiscard]] double ShareOf(int series, int category, double scaledSum) const {
        return chart_.SeriesValues(series)[category] * SumUnit / scaledSum;
    }

    void Count(double value) {
        if (value < 0) ++negatives_;
        if (value == 0) ++zeros_;
    }

    void Slices(int category, Point center) {
        const double radius = std::max(1.0, grid_.diameter / 2);
        const Box round{center.x - radius, center.y - radius, center.x + radius, center.y + radius};
        const double sum = ScaledSumOf(category);
        for (int number = 1; number <= chart_.Plot.SeriesCollection.Count(); ++number)
            Count(chart_.SeriesValues(number)[category]);
        if (!(sum > 0)) {
            // Nothing to divide: an empty ring keeps the pie's place.
            context_.builder.AddSlice({PartCode::Plot}, {round, 0, 360}, {},
                                      {PenStyle::Dashed, 0.75, chart_.Plot.Axis(AxisId::X).Pen.VtColor});
            return;
        }
        double before = 0;
        for (int number = 1; number <= chart_.Plot.SeriesCollection.Count(); ++number) {
            const double value = chart_.SeriesValues(number)[category];
            if (!(value > 0)) continue;
            const DataPoint& look = chart_.Plot.SeriesCollection(number).DataPoints.Item(category + 1);
            const double share = ShareOf(number, category, sum);
            const double end = before + share;
            const Slice slice{round, TurnStart - 360 * end, 360 * share};
            context_.builder.AddSlice({PartCode::Series, number, category + 1}, slice, FillOf(look.Brush),
                                      EdgeOf(chart_, look));
            places_.Add({number, category + 1}, slice);
            before = end;
        }
        Separators(category, center, radius, sum);
    }

    /// Lines in the colour of the ground between neighbouring slices, in one chain through the centre.
    void Separators(int category, Point center, double radius, double sum) {
        double before = 0;
        int slices = 0;
        for (int number = 1; number <= chart_.Plot.SeriesCollection.Count(); ++number) {
            const double value = chart_.SeriesValues(number)[category];
            if (!(value > 0)) continue;
            const double angle = 2 * std::numbers::pi * before;
            context_.builder.AddPoint(center);
            context_.builder.AddPoint(
                {center.x + radius * std::sin(angle), center.y - radius * std::cos(angle)});
            context_.builder.AddPoint(center);
            before += ShareOf(number, category, sum);
            ++slices;
        }
        const double width = radius > 20 ? 1.0 : 0.5;
        if (slices > 1)
            context_.builder.AddPolyline({PartCode::Plot},
                                         {PenStyle::Solid, width, chart_.Backdrop.Fill.Brush.FillColor});
        else
            context_.builder.DropPendingPoints();
    }

    /// What a name on the slices is read on.
    void Plate(const TextBlock& block, Point center) {
        if (block.IsEmpty()) return;
        const Size half{block.Length() / 2 + PlateRim, block.Depth() / 2 + PlateRim};
        context_.builder.AddRectangle(
            {PartCode::Plot},
            {center.x - half.width, center.y - half.height, center.x + half.width, center.y + half.height},
            SolidFill(chart_.Backdrop.Fill.Brush.FillColor), {}, false);
    }

    void Name(int category, Point center) {
        if (NamePosition() == SubPlotLabelPosition::None) return;
        const TextBlock block = BreakText(chart_.CategoryName(category + 1), nameFont_,
                                          Orientation::Horizontal, {grid_.cell.width, 1}, context_.measurer);
        const double radius = grid_.diameter / 2 + grid_.reach.height;
        const double depth = block.Depth() + NameGap;
        Box place{center.x, center.y - radius - depth, center.x, center.y - radius - NameGap};
        if (NamePosition() == SubPlotLabelPosition::Below)
            place = {center.x, center.y + radius + NameGap, center.x, center.y + radius + depth};
        if (NamePosition() == SubPlotLabelPosition::Center) {
            place = {center.x, center.y, center.x, center.y};
            Plate(block, center);
        }
        PlaceText(context_.builder, {PartCode::AxisLabel, static_cast<int>(AxisId::X), category + 1}, block,
                  place, HorizontalAlignment::Center, VerticalAlignment::Center);
    }

    const LayoutContext& context_;
    const Chart& chart_;
    Box box_;
    LabelTexts texts_;
    Font nameFont_;
    PieGrid grid_;
    PiePlaces places_;
    std::vector<PieCircle> circles_;
    int negatives_ = 0;
    int zeros_ = 0;
    int omittedLabels_ = 0;
};

} // namespace

PiePlaces LayOutPies(const LayoutContext& context, const Box& box) {
    if (context.chart.CategoryCount() == 0 || context.chart.Plot.SeriesCollection.Count() == 0) {
        context.builder.Warn(QStringLiteral("there is no value to show"));
        return {};
    }
    context.builder.AddRectangle({PartCode::Plot}, box, {}); // to be pointed at, between the pies too
    return PiesLayout(context, box).Run();
}

} // namespace QmChart6

#include "chartcontrol/layout/text/LegendLayout.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/text/BackdropLayout.h"
#include "chartcontrol/layout/text/Edges.h"
#include "chartcontrol/layout/text/TextBlock.h"

#include <algorithm>
#include <cmath>

namespace QmChart6 {

namespace {

/// The legend gets at most this part of the free width (at a side) or height (above or below the plot).
constexpr double LargestShare = 1.0 / 3;
/// Lengths as parts of the font's size.
constexpr double SwatchShare = 0.85;
constexpr double LineSampleShare = 2.0;
constexpr double SymbolGapShare = 0.5;
constexpr double ColumnGapShare = 1.4;
constexpr double RowShare = 1.55;
constexpr double PlotGapShare = 1.4;
/// A name is elided to no less than this many times the font's size.
constexpr double ShortestNameShare = 3;

struct Entry {
    int series = 0; // 0: tells how many are missing
    QString name;
    double width = 0;
};

struct LegendGrid {
    std::vector<Entry> entries;
    int rows = 0;
    double rowHeight = 0;
    double symbolWidth = 0;
    std::vector<double> columnWidths; // of the names
    double columnGap = 0;

    [[nodiscard]] int Columns() const { return static_cast<int>(columnWidths.size()); }
    [[nodiscard]] Size Extent() const {
        double width = std::max(0, Columns() - 1) * columnGap;
        for (const double column : columnWidths) width += symbolWidth + column;
        return {width, rows * rowHeight};
    }
};

/// The widest sample that any drawn series needs, with the gap behind it.
double SymbolWidth(const Chart& chart) {
    const double size = chart.Legend.VtFont.Size;
    double width = SwatchShare * size;
    for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series) {
        if (!KindOf(MarkOfSeries(chart, series)).isFilled) width = LineSampleShare * size;
    }
    return width + SymbolGapShare * size;
}

class GridPlanner {
public:
    GridPlanner(const LayoutContext& context, const Size& room) : context_(context), room_(room) {
        grid_.rowHeight = RowShare * Font().Size;
        grid_.symbolWidth = SymbolWidth(context.chart);
        grid_.columnGap = ColumnGapShare * Font().Size;
    }

    LegendGrid Beside() {
        Collect();
        const int most = std::max(1, static_cast<int>(room_.height / grid_.rowHeight));
        const int columns = Ceil(Count(), most);
        grid_.rows = Ceil(Count(), columns);
        FitColumns(columns);
        return grid_;
    }

    LegendGrid AboveOrBelow() {
        Collect();
        double widest = 0;
        for (const Entry& entry : grid_.entries) widest = std::max(widest, entry.width);
        const double pitch = grid_.symbolWidth + std::min(widest, room_.width / 2) + grid_.columnGap;
        int columns = std::clamp(static_cast<int>((room_.width + grid_.columnGap) / pitch), 1, Count());
        const int most = std::max(1, static_cast<int>(room_.height / grid_.rowHeight));
        columns = std::max(columns, Ceil(Count(), most));
        grid_.rows = Ceil(Count(), columns);
        FitColumns(Ceil(Count(), grid_.rows));
        return grid_;
    }

private:
    [[nodiscard]] const QmChart6::Font& Font() const { return context_.chart.Legend.VtFont; }
    [[nodiscard]] int Count() const { return static_cast<int>(grid_.entries.size()); }
    static int Ceil(int value, int divisor) { return (value + divisor - 1) / divisor; }

    void Collect() {
        const Chart& chart = context_.chart;
        int drawn = 0;
        for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series)
            drawn += IsDrawn(chart, series);
        const int most = MostEntries();
        const int shown = drawn > most ? std::max(0, most - 1) : drawn;
        for (int series = 1; Count() < shown; ++series)
            if (IsDrawn(chart, series)) Add(series, Printable(LegendName(chart, series)).simplified());
        if (shown == drawn) return;
        Add(0, QStringLiteral("\u2026 +%1").arg(drawn - shown));
        context_.builder.Warn(
            QStringLiteral("the legend has no room for %1 of %2 series").arg(drawn - shown).arg(drawn));
    }

    /// As many entries as fit with the shortest names.
    [[nodiscard]] int MostEntries() const {
        const double pitch = grid_.symbolWidth + ShortestNameShare * Font().Size + grid_.columnGap;
        const int columns = std::max(1, static_cast<int>((room_.width + grid_.columnGap) / pitch));
        return columns * std::max(1, static_cast<int>(room_.height / grid_.rowHeight));
    }

    void Add(int series, const QString& name) {
        const QString text = Elide(name, Font(), room_.width - grid_.symbolWidth, context_.measurer);
        grid_.entries.push_back({series, text, context_.measurer.Measure(text, Font()).width});
    }

    /// Columns as wide as their widest name; all narrowed alike where they do not fit.
    void FitColumns(int columns) {
        grid_.columnWidths.assign(static_cast<std::size_t>(columns), 0);
        for (std::size_t i = 0; i < grid_.entries.size(); ++i) {
            double& column = grid_.columnWidths[i / static_cast<std::size_t>(grid_.rows)];
            column = std::max(column, grid_.entries[i].width);
        }
        const double names = (room_.width + grid_.columnGap) / columns - grid_.columnGap - grid_.symbolWidth;
        if (grid_.Extent().width <= room_.width) return;
        for (Entry& entry : grid_.entries) {
            entry.name = Elide(entry.name, Font(), names, context_.measurer);
            entry.width = context_.measurer.Measure(entry.name, Font()).width;
        }
        for (double& column : grid_.columnWidths) column = std::min(column, names);
    }

    const LayoutContext& context_;
    Size room_;
    LegendGrid grid_;
};

void AddSymbol(const LayoutContext& context, int number, const Box& box) {
    SceneBuilder& builder = context.builder;
    const Part part{PartCode::Legend, number};
    const Series& series = context.chart.Plot.SeriesCollection(number);
    const DataPoint& look = series.DataPoints.Item(DataPoints::All);
    const MarkKind& kind = KindOf(MarkOfSeries(context.chart, number));
    if (kind.isFilled) {
        const double half = SwatchShare * context.chart.Legend.VtFont.Size / 2;
        const Point center = box.Center();
        builder.AddRectangle(part, {center.x - half, center.y - half, center.x + half, center.y + half},
                             FillOf(look.Brush), StrokeOf(look.EdgePen));
        return;
    }
    const LineLook shown = kind.hasMarkers ? LineLookOf(series) : LineLook{};
    if (shown.line)
        builder.AddLine(part, {box.left, box.Center().y}, {box.right, box.Center().y}, LineStrokeOf(series),
                        false);
    if (shown.markers) {
        builder.AddPoint(box.Center());
        builder.AddMarkers(part, MarkerStyleOf(series, number), std::min(look.Marker.Size, box.Width()),
                           SolidFill(look.Brush.FillColor));
    }
}

void PlaceGrid(const LayoutContext& context, const LegendGrid& grid, const Box& cell) {
    // The gaps between the entries belong to the legend too, for whoever points at them.
    context.builder.AddRectangle({PartCode::Legend}, cell, {});
    const Font& font = context.chart.Legend.VtFont;
    const TextExtent line = context.measurer.Measure(QStringLiteral("x"), font);
    double left = cell.left;
    for (int column = 0; column < grid.Columns(); ++column) {
        for (int row = 0; row < grid.rows; ++row) {
            const std::size_t index = static_cast<std::size_t>(column) * static_cast<std::size_t>(grid.rows) +
                                      static_cast<std::size_t>(row);
            if (index >= grid.entries.size()) return;
            const Entry& entry = grid.entries[index];
            const double top = cell.top + row * grid.rowHeight;
            const double middle = top + grid.rowHeight / 2;
            const Box symbol{left, top, left + grid.symbolWidth - SymbolGapShare * font.Size,
                             top + grid.rowHeight};
            if (entry.series > 0) AddSymbol(context, entry.series, symbol);
            context.builder.AddText({PartCode::Legend, entry.series},
                                    {entry.name,
                                     font,
                                     {left + grid.symbolWidth, middle + (line.ascent - line.descent) / 2},
                                     TextAnchor::Start,
                                     0,
                                     entry.width,
                                     line.ascent,
                                     line.descent});
        }
        left += grid.symbolWidth + grid.columnWidths[static_cast<std::size_t>(column)] + grid.columnGap;
    }
}

/// The grid's box within the cell that was cut off: at the corner or the middle that the location says.
Box WithinCell(const Box& cell, const Size& extent, LocationType location) {
    const bool atTop = location == LocationType::TopLeft || location == LocationType::TopRight;
    const bool atBottom = location == LocationType::BottomLeft || location == LocationType::BottomRight;
    const double left = cell.Center().x - extent.width / 2;
    const double top = atTop      ? cell.top
                       : atBottom ? cell.bottom - extent.height
                                  : cell.Center().y - extent.height / 2;
    return {left, top, left + extent.width, top + extent.height};
}

} // namespace

void LayOutLegend(const LayoutContext& context, Box& free) {
    const Legend& legend = context.chart.Legend;
    if (!context.chart.ShowLegend || context.chart.Plot.SeriesCollection.Count() == 0) return;
    const LocationType location = legend.Location.LocationType;
    if (location == LocationType::Custom) {
        const CoordinateRect& rect = legend.Location.Rect;
        const Box box{rect.Min.X, rect.Min.Y, std::max(rect.Min.X, rect.Max.X),
                      std::max(rect.Min.Y, rect.Max.Y)};
        LayOutBackdrop(context.builder, {PartCode::Legend}, legend.Backdrop, box);
        PlaceGrid(context, GridPlanner(context, {box.Width(), box.Height()}).Beside(), box);
        return;
    }
    const Side side = SideOf(location);
    const bool beside = side == Side::Left || side == Side::Right;
    const LegendGrid grid =
        beside ? GridPlanner(context, {LargestShare * free.Width(), free.Height()}).Beside()
               : GridPlanner(context, {free.Width(), LargestShare * free.Height()}).AboveOrBelow();
    const Size extent = grid.Extent();
    const Box cell =
        CutOff(free, side, beside ? extent.width : extent.height, PlotGapShare * legend.VtFont.Size);
    const Box box = WithinCell(cell, extent, location);
    LayOutBackdrop(context.builder, {PartCode::Legend}, legend.Backdrop, box);
    PlaceGrid(context, grid, box);
}

} // namespace QmChart6

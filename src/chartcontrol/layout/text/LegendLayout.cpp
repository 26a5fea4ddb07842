#include "chartcontrol/layout/text/LegendLayout.h"

#include "chartcontrol/layout/text/AlikeNames.h"

#include "chartcontrol/layout/data/SeriesLook.h"
#include "chartcontrol/layout/text/BackdropLayout.h"
#include "chartcontrol/layout/text/Edges.h"
#include "chartcontrol/layout/text/TextBlock.h"
#include "chartcontrol/model/Places.h"

#include <QSet>

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
/// Names are not elided to less than this many times the font's size while fewer entries would spare it.
constexpr double ShortestNameShare = 9;
/// A legend beside the plot in which names would get less than this goes below it.
constexpr double NarrowestNameShare = 5;
constexpr int MostMeasured = 200;

struct Entry {
    int series = 0; // 0: tells how many are missing
    QString name;
    double width = 0;

    [[nodiscard]] bool IsRest() const { return series == 0; }
};

struct LegendGrid {
    std::vector<Entry> entries;
    int rows = 0;
    double rowHeight = 0;
    double symbolWidth = 0;
    std::vector<double> columnWidths; // of the names
    double columnGap = 0;

    /// It would name a single series, and say only that there are others.
    [[nodiscard]] bool TellsLittle() const { return entries.size() == 2 && entries.back().IsRest(); }
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

bool IsPiled(const Chart& chart) {
    return chart.Stacking && KindOf(chart.chartType()).stacks;
}

class GridPlanner {
public:
    /// `beside` the plot entries stand below each other.
    GridPlanner(const LayoutContext& context, const Size& room, bool beside)
        : context_(context), room_(room), piled_(beside && IsPiled(context.chart)) {
        grid_.rowHeight = RowShare * Font().Size;
        grid_.symbolWidth = SymbolWidth(context.chart);
        grid_.columnGap = ColumnGapShare * Font().Size;
    }

    LegendGrid Beside() {
        Collect();
        if (grid_.entries.empty()) return grid_;
        const int most = std::max(1, static_cast<int>(room_.height / grid_.rowHeight));
        const int columns = Ceil(Count(), most);
        grid_.rows = Ceil(Count(), columns);
        FitColumns(columns);
        return grid_;
    }

    /// How long the names are that the legend has to show.
    [[nodiscard]] double WidestName() const {
        const Chart& chart = context_.chart;
        double widest = 0;
        for (int series = 1; series <= std::min(chart.Plot.SeriesCollection.Count(), MostMeasured); ++series)
            if (IsDrawn(chart, series))
                widest = std::max(widest, context_.measurer.Measure(NameOf(chart, series), Font()).width);
        return widest;
    }

    LegendGrid AboveOrBelow() {
        Collect();
        if (grid_.entries.empty()) return grid_;
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

    static QString NameOf(const Chart& chart, int series) {
        return Printable(LegendName(chart, series)).simplified();
    }

    /// The entries that have room, in the order in which the eye meets the series: those of a pile from its
    /// top.
    void Collect() {
        const Chart& chart = context_.chart;
        std::vector<int> drawn;
        for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series)
            if (IsDrawn(chart, series)) drawn.push_back(series);
        if (piled_) std::reverse(drawn.begin(), drawn.end());
        const std::size_t most = MostEntries();
        const std::size_t shown = drawn.size() > most ? std::max<std::size_t>(1, most) - 1 : drawn.size();
        for (std::size_t i = 0; i < shown; ++i) Add(drawn[i], NameOf(chart, drawn[i]));
        if (shown == drawn.size()) return;
        AddRest(drawn.size() - shown);
        context_.builder.Warn(QStringLiteral("the legend has no room for %1 of %2 series")
                                  .arg(drawn.size() - shown)
                                  .arg(drawn.size()));
    }

    /// As many entries as fit with names that are whole, or long enough to be known.
    [[nodiscard]] std::size_t MostEntries() const {
        const double rest = context_.measurer.Measure(QStringLiteral("\u2026 +9999"), Font()).width;
        const double name = std::max(rest, std::min(WidestName(), ShortestNameShare * Font().Size));
        const double pitch = grid_.symbolWidth + name + grid_.columnGap;
        const int columns = std::max(1, static_cast<int>((room_.width + grid_.columnGap) / pitch));
        return static_cast<std::size_t>(columns *
                                        std::max(1, static_cast<int>(room_.height / grid_.rowHeight)));
    }

    /// How many are missing; nothing where there is no room even for that.
    void AddRest(std::size_t missing) {
        for (const char* form : {"\u2026 +%1", "+%1"}) {
            Add(0, QString::fromUtf8(form).arg(missing));
            if (grid_.entries.back().width <= room_.width) return;
            grid_.entries.pop_back();
        }
    }

    void Add(int series, const QString& name) {
        grid_.entries.push_back({series, name, context_.measurer.Measure(name, Font()).width});
    }

    /// Columns as wide as their widest name; all narrowed alike where they do not fit.
    void FitColumns(int columns) {
        grid_.columnWidths.assign(static_cast<std::size_t>(columns), 0);
        for (std::size_t i = 0; i < grid_.entries.size(); ++i) {
            double& column = grid_.columnWidths[i / static_cast<std::size_t>(grid_.rows)];
            column = std::max(column, grid_.entries[i].width);
        }
        if (grid_.Extent().width <= room_.width) return;
        const double names = (room_.width + grid_.columnGap) / columns - grid_.columnGap - grid_.symbolWidth;
        Shorten(names);
        for (double& column : grid_.columnWidths) column = std::min(column, names);
    }

    /// Names lose their ends, or their middles where they begin alike and could not be told apart, or else
    /// the words that all of them begin and end with.
    void Shorten(double length) {
        QStringList names;
        for (const Entry& entry : grid_.entries)
            if (!entry.IsRest()) names += entry.name;
        const QSet<QString> all(names.begin(), names.end());
        QStringList shown = Shortened(names, length, false);
        if (QSet<QString>(shown.begin(), shown.end()).size() < all.size())
            shown = Shortened(names, length, true);
        if (QSet<QString>(shown.begin(), shown.end()).size() < all.size())
            shown = Shortened(WithoutCommonEnds(names), length, true);
        for (qsizetype i = 0; i < shown.size(); ++i) {
            Entry& entry = grid_.entries[static_cast<std::size_t>(i)];
            entry.name = shown[i];
            entry.width = context_.measurer.Measure(entry.name, Font()).width;
        }
    }

    [[nodiscard]] QStringList Shortened(const QStringList& names, double length, bool inMiddle) const {
        QStringList shown;
        for (const QString& name : names) {
            if (!inMiddle) {
                shown += Elide(name, Font(), length, context_.measurer);
                continue;
            }
            const TextBlock block = ElidedLine(name, Font(), length, context_.measurer);
            shown += block.IsEmpty() ? QString() : block.lines.front().text;
        }
        return shown;
    }

    const LayoutContext& context_;
    Size room_;
    bool piled_;
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
        DataPoint shown = look;
        // Areas of flat charts have no edges but those of their patterns.
        if (MarkOfSeries(context.chart, number) == Mark::Area) shown.EdgePen.Style = PenStyle::None;
        builder.AddRectangle(part, {center.x - half, center.y - half, center.x + half, center.y + half},
                             FillOf(look.Brush), EdgeOf(context.chart, shown));
        return;
    }
    const LineLook shown = kind.hasMarkers ? LineLookOf(series) : LineLook{};
    if (shown.line)
        builder.AddLine(part, {box.left, box.Center().y}, {box.right, box.Center().y},
                        LineStrokeOf(context.chart, series), false);
    if (shown.markers) {
        builder.AddPoint(box.Center());
        builder.AddMarkers(part, MarkerStyleOf(series, number), std::min(look.Marker.Size, box.Width()),
                           SolidFill(ShownColour(context.chart, look.Brush)));
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
            context.builder.AddText(
                {PartCode::Legend, entry.series},
                {entry.name,
                 font,
                 {entry.IsRest() ? left : left + grid.symbolWidth, middle + (line.ascent - line.descent) / 2},
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

bool IsBeside(Side side) {
    return side == Side::Left || side == Side::Right;
}

Size RoomAt(Side side, const Box& free) {
    return IsBeside(side) ? Size{LargestShare * free.Width(), free.Height()}
                          : Size{free.Width(), LargestShare * free.Height()};
}

/// The side that was asked for; in narrow charts, where names would have no room there, below the plot.
Side SideThatFits(const LayoutContext& context, Side asked, const Box& free) {
    if (!IsBeside(asked)) return asked;
    const Size room = RoomAt(asked, free);
    const double names = room.width - SymbolWidth(context.chart);
    const double least = std::min(GridPlanner(context, room, true).WidestName(),
                                  NarrowestNameShare * context.chart.Legend.VtFont.Size);
    return names < least ? Side::Bottom : asked;
}

/// A legend that was moved keeps its middle, and whether it is rather high or wide; its names have the room
/// that they need.
void LayOutMovedLegend(const LayoutContext& context) {
    const Legend& legend = context.chart.Legend;
    const Size& size = context.request.size;
    const Box whole{0, 0, size.width, size.height};
    const CoordinateRect rect = RectIn(legend.Location, {size.width, size.height});
    const Point center{(rect.Min.X + rect.Max.X) / 2, (rect.Min.Y + rect.Max.Y) / 2};
    const CoordinateRect& chosen = legend.Location.Rect;
    const bool wide = chosen.Max.X - chosen.Min.X > 2 * (chosen.Max.Y - chosen.Min.Y);
    const LegendGrid grid = wide ? GridPlanner(context, RoomAt(Side::Bottom, whole), false).AboveOrBelow()
                                 : GridPlanner(context, RoomAt(Side::Right, whole), true).Beside();
    if (grid.TellsLittle()) {
        context.builder.Warn(QStringLiteral("the chart is too small for a legend"));
        return;
    }
    const Size extent = grid.Extent();
    const Box box = MovedInto(whole, {center.x - extent.width / 2, center.y - extent.height / 2,
                                      center.x + extent.width / 2, center.y + extent.height / 2});
    LayOutBackdrop(context.builder, {PartCode::Legend}, legend.Backdrop, box);
    PlaceGrid(context, grid, box);
}

} // namespace

void LayOutLegend(const LayoutContext& context, Box& free) {
    const Legend& legend = context.chart.Legend;
    if (context.chart.Plot.SeriesCollection.Count() == 0) return;
    const LocationType location = legend.Location.LocationType;
    if (location == LocationType::Custom && legend.Location.Within != Coordinate{}) {
        LayOutMovedLegend(context);
        return;
    }
    if (location == LocationType::Custom) {
        const CoordinateRect& rect = legend.Location.Rect;
        const Box box{rect.Min.X, rect.Min.Y, std::max(rect.Min.X, rect.Max.X),
                      std::max(rect.Min.Y, rect.Max.Y)};
        LayOutBackdrop(context.builder, {PartCode::Legend}, legend.Backdrop, box);
        PlaceGrid(context, GridPlanner(context, {box.Width(), box.Height()}, true).Beside(), box);
        return;
    }
    const Side side = SideThatFits(context, SideOf(location), free);
    const bool beside = IsBeside(side);
    const LegendGrid grid = beside ? GridPlanner(context, RoomAt(side, free), true).Beside()
                                   : GridPlanner(context, RoomAt(side, free), false).AboveOrBelow();
    if (grid.TellsLittle()) {
        context.builder.Warn(QStringLiteral("the chart is too small for a legend"));
        return;
    }
    const Size extent = grid.Extent();
    const Box cell =
        CutOff(free, side, beside ? extent.width : extent.height, PlotGapShare * legend.VtFont.Size);
    const Box box = WithinCell(cell, extent, location);
    LayOutBackdrop(context.builder, {PartCode::Legend}, legend.Backdrop, box);
    PlaceGrid(context, grid, box);
}

} // namespace QmChart6

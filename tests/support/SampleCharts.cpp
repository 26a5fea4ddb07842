#include "support/SampleCharts.h"

#include "chartcontrol/model/Palette.h"

#include <cmath>
#include <stdexcept>

namespace QmChart6::Samples {

namespace {

const QStringList Months{QStringLiteral("January"), QStringLiteral("February"), QStringLiteral("March"),
                         QStringLiteral("April"),   QStringLiteral("May"),      QStringLiteral("June"),
                         QStringLiteral("July"),    QStringLiteral("August"),   QStringLiteral("September"),
                         QStringLiteral("October"), QStringLiteral("November"), QStringLiteral("December")};
const QStringList Regions{QStringLiteral("North"), QStringLiteral("South"), QStringLiteral("East"),
                          QStringLiteral("West")};

double Wave(int row, int column) {
    return std::round(55 + 25 * std::sin(0.6 * row + column) + 12 * std::cos(1.7 * row * column));
}

void Title(Chart& chart, const QString& title, const QString& x, const QString& y) {
    chart.Title.Text = title;
    chart.Plot.Axis(AxisId::X).AxisTitle.Text = x;
    chart.Plot.Axis(AxisId::Y).AxisTitle.Text = y;
    chart.Plot.Axis(AxisId::SecondaryY).AxisTitle.Text = y;
}

Chart Sales(int columns, ChartType type = ChartType::Bar2D) {
    Chart chart = ChartOf(12, columns, Wave);
    for (int row = 1; row <= 12; ++row) chart.DataGrid.SetRowLabel(row, Months[row - 1]);
    for (int column = 1; column <= columns && column <= 4; ++column)
        chart.DataGrid.SetColumnLabel(column, Regions[column - 1]);
    Title(chart, QStringLiteral("Sales by Month and Region"), QStringLiteral("Month"),
          QStringLiteral("Units Sold"));
    chart.SetChartType(type);
    return chart;
}

DataPoint& LookOf(Chart& chart, int series) {
    return chart.Plot.SeriesCollection(series).DataPoints.Item(DataPoints::All);
}

Chart Labelled(ChartType type, LabelLocation location) {
    Chart chart = Sales(2, type);
    for (int series = 1; series <= 2; ++series) {
        DataPointLabel& label = LookOf(chart, series).DataPointLabel;
        label.Component = LabelShowsValue;
        label.LocationType = location;
        label.VtFont.Size = 8;
    }
    return chart;
}

Chart SignsAndGaps(ChartType type) {
    Chart chart = Sales(3, type);
    for (int row = 1; row <= 12; ++row)
        for (int column = 1; column <= 3; ++column)
            chart.DataGrid.SetValue(row, column,
                                    (row + column) % 5 == 0 ? Missing() : Wave(row, column) - 50);
    return chart;
}

Chart Pies(int categories, int slices, LabelLocation location) {
    Chart chart =
        ChartOf(categories, slices, [](int row, int column) { return 10.0 + (7 * row + 5 * column) % 23; });
    for (int column = 1; column <= slices && column <= 12; ++column)
        chart.DataGrid.SetColumnLabel(column, Months[column - 1]);
    chart.SetChartType(ChartType::Pie2D);
    chart.Title.Text = QStringLiteral("Shares");
    for (int series = 1; series <= slices && location != LabelLocation::None; ++series) {
        LookOf(chart, series).DataPointLabel.Component = LabelShowsPercent;
        LookOf(chart, series).DataPointLabel.LocationType = location;
    }
    return chart;
}

/// A pie with some broad and many thin slices, whose labels tell the series' name and percent.
Chart ThinSlices(LabelLineStyle style) {
    Chart chart =
        ChartOf(1, 12, [](int, int column) { return column <= 3 ? 40.0 / column : 1.0 + 0.3 * column; });
    for (int column = 1; column <= 12; ++column) chart.DataGrid.SetColumnLabel(column, Months[column - 1]);
    chart.SetChartType(ChartType::Pie2D);
    chart.Title.Text = QStringLiteral("Thin Slices");
    chart.ShowLegend = false;
    for (int series = 1; series <= 12; ++series) {
        DataPointLabel& label = LookOf(chart, series).DataPointLabel;
        label.Component = LabelShowsPercent | LabelShowsSeriesName;
        label.LocationType = LabelLocation::Outside;
        label.LineStyle = style;
        label.PercentFormat = QStringLiteral("0.0%");
    }
    return chart;
}

Chart Scatter(int columns) {
    Chart chart = ChartOf(60, columns, [](int row, int column) {
        return column % 2 == 1 ? 20 + 3.1 * row + 9 * std::sin(row * column)
                               : 5 + 0.8 * row + 8 * std::cos(row * 1.3 * column);
    });
    chart.SetChartType(ChartType::XY2D);
    Title(chart, QStringLiteral("Scatter"), QStringLiteral("Horsepower"), QStringLiteral("Miles per Gallon"));
    for (Series& series : chart.Plot.SeriesCollection) {
        series.ShowLine = false;
        series.SeriesMarker.Show = true;
    }
    return chart;
}

Chart LongNames() {
    Chart chart = ChartOf(40, 1, Wave);
    for (int row = 1; row <= 40; ++row)
        chart.DataGrid.SetRowLabel(row, QStringLiteral("A Rather Long Category Name, Number %1").arg(row));
    Title(chart, QStringLiteral("Forty Long Names"), QStringLiteral("Category"), QStringLiteral("Value"));
    return chart;
}

Chart WrappedNames() {
    Chart chart = ChartOf(5, 2, Wave);
    const QStringList names{QStringLiteral("Fruit and Vegetables"), QStringLiteral("Dairy"),
                            QStringLiteral("Bread and Cakes"), QStringLiteral("Household Goods"),
                            QStringLiteral("Toys and Games")};
    for (int row = 1; row <= 5; ++row) chart.DataGrid.SetRowLabel(row, names[row - 1]);
    Title(chart, QStringLiteral("Turnover by Department"), {}, QStringLiteral("Thousands"));
    return chart;
}

Chart LongTitle() {
    Chart chart = Sales(2);
    chart.Title.Text =
        QStringLiteral("A title that is a good deal longer than the chart is wide, so that it must go on "
                       "in a second line, which is centred below the first");
    chart.Footnote.Text = QStringLiteral("Source: made up for this example.");
    return chart;
}

Chart LegendAt(LocationType location) {
    Chart chart = Sales(4);
    chart.Legend.Location.LocationType = location;
    return chart;
}

Chart Brushes(BrushStyle style, int count) {
    Chart chart = ChartOf(1, count, [](int, int column) { return 4.0 + column % 3; });
    for (int series = 1; series <= count; ++series) {
        chart.DataGrid.SetColumnLabel(series, QStringLiteral("%1").arg(series - 1));
        Brush& brush = LookOf(chart, series).Brush;
        brush = {style, series - 1, {235, 240, 248}, PaletteColour(series)};
    }
    chart.Plot.BarGap = 10;
    return chart;
}

Chart SecondAxis() {
    Chart chart =
        ChartOf(12, 2, [](int row, int column) { return column == 1 ? Wave(row, 1) : 0.02 * Wave(row, 2); });
    Title(chart, QStringLiteral("Two Axes"), QStringLiteral("Row"), QStringLiteral("Units"));
    chart.SetChartType(ChartType::Combination2D);
    chart.Plot.SeriesCollection(2).SecondaryAxis = true;
    chart.Plot.Axis(AxisId::SecondaryY).AxisScale.Hide = false;
    chart.Plot.Axis(AxisId::SecondaryY).AxisTitle.Text = QStringLiteral("Share");
    return chart;
}

Chart Dense(ChartType type, int rows) {
    Chart chart = ChartOf(rows, 2, [](int row, int column) {
        if (row == 700) return 9.0;
        return column + std::sin(row * 0.01 * column) + 0.3 * std::sin(row * 1.7);
    });
    chart.SetChartType(type);
    return chart;
}

Chart Stacked(ChartType type, bool shares, bool signs = false) {
    Chart chart = signs ? SignsAndGaps(type) : Sales(4, type);
    chart.Stacking = true;
    if (shares) {
        AxisScale& scale = chart.Plot.Axis(AxisId::Y).AxisScale;
        scale.Type = ScaleType::Percent;
        scale.PercentBasis = PercentBasis::SumOfRow;
        chart.Plot.Axis(AxisId::Y).Labels.Item(1).Format = QStringLiteral("0%");
    }
    return chart;
}

Chart Statistics(Chart chart) {
    chart.Plot.SeriesCollection(1).StatLine.Flag =
        StatMinimum | StatMaximum | StatMean | StatStandardDeviation | StatRegression;
    return chart;
}

Chart Space(ChartType type, double rotation = 60, double elevation = 30,
            Projection projection = Projection::Oblique) {
    Chart chart = Sales(4, type);
    chart.Plot.View3d = {rotation, elevation};
    chart.Plot.Projection = projection;
    chart.Plot.Axis(AxisId::Z).AxisTitle.Text = QStringLiteral("Region");
    return chart;
}

Chart InSpace(Chart chart, ChartType type) {
    chart.SetChartType(type);
    return chart;
}

Chart FramedLook() {
    Chart chart = Sales(4);
    chart.Backdrop.Frame.Style = FrameStyle::ThickOuter;
    chart.Plot.Axis(AxisId::Y).AxisGrid.MajorPen.Style = PenStyle::Dotted;
    return chart;
}

Chart AllAxes() {
    Chart chart = Sales(2);
    chart.Plot.Axis(AxisId::SecondaryY).AxisScale.Hide = false;
    for (int id = 0; id < 3; ++id) {
        chart.Plot.Axis(id).AxisGrid.MajorPen.Style = PenStyle::Dashed;
        chart.Plot.Axis(id).Pen.Style = PenStyle::Solid;
    }
    return chart;
}

Chart Markers() {
    Chart chart = Sales(4, ChartType::Line2D);
    for (Series& series : chart.Plot.SeriesCollection) series.SeriesMarker.Show = true;
    return chart;
}

/// Every 3D type in every projection from four sides, small, so that many fit a page.
void AddSpaceViews(std::vector<Sample>& samples) {
    const std::vector<std::pair<const char*, ChartType>> types{{"bar", ChartType::Bar3D},
                                                               {"line", ChartType::Line3D},
                                                               {"area", ChartType::Area3D},
                                                               {"step", ChartType::Step3D},
                                                               {"combination", ChartType::Combination3D}};
    const std::vector<std::pair<const char*, Projection>> projections{
        {"perspective", Projection::Perspective},
        {"oblique", Projection::Oblique},
        {"orthogonal", Projection::Orthogonal}};
    const std::vector<View3d> views{{60, 30}, {130, 15}, {220, 45}, {320, -25}};
    for (const auto& [typeName, type] : types)
        for (const auto& [projectionName, projection] : projections)
            for (std::size_t view = 0; view < views.size(); ++view)
                samples.push_back({"space-" + std::string(typeName) + '-' + projectionName + '-' +
                                       std::to_string(static_cast<int>(views[view].Rotation)),
                                   320, 240, [type = type, projection = projection, view = views[view]] {
                                       Chart chart = ChartOf(5, 3, [](int row, int column) {
                                           return row == 4 && column == 2 ? -20.0 : Wave(row, column);
                                       });
                                       chart.SetChartType(type);
                                       chart.Plot.Projection = projection;
                                       chart.Plot.View3d = view;
                                       chart.ShowLegend = false;
                                       return chart;
                                   }});
}

/// Values from 0.4 to 40,000, one of them not above zero.
Chart Logarithmic(ChartType type) {
    Chart chart = ChartOf(9, 2, [](int row, int column) {
        return row == 5 && column == 2 ? 0.0 : column * 0.4 * std::pow(4.0, row - 1);
    });
    chart.SetChartType(type);
    for (const AxisId id : {AxisId::X, AxisId::Y})
        chart.Plot.Axis(id).AxisScale.Type = ScaleType::Logarithmic;
    for (Series& series : chart.Plot.SeriesCollection) series.SeriesMarker.Show = true;
    chart.Plot.SeriesCollection(1).StatLine.Flag = StatMean | StatRegression;
    return chart;
}

Chart WithoutValues(int rows, int columns) {
    return ChartOf(rows, columns, [](int, int) { return Missing(); });
}

} // namespace

Chart ChartOf(int rows, int columns, const std::function<double(int, int)>& value) {
    Chart chart;
    chart.SetGridSize(rows, columns);
    for (int column = 1; column <= columns; ++column) {
        chart.DataGrid.SetColumnLabel(column, QStringLiteral("Series %1").arg(column));
        const auto cells = chart.DataGrid.WritableColumn(column);
        for (int row = 1; row <= rows; ++row) cells[static_cast<std::size_t>(row) - 1] = value(row, column);
    }
    for (int row = 1; row <= rows; ++row) chart.DataGrid.SetRowLabel(row, QStringLiteral("Row %1").arg(row));
    return chart;
}

namespace {

std::vector<Sample> Flat() {
    using T = ChartType;
    using L = LabelLocation;
    return {
        {"bar-4-series", 640, 420, [] { return Sales(4); }},
        {"bar-1-series", 640, 420, [] { return Sales(1); }},
        {"bar-40-long-names", 400, 300, LongNames},
        {"bar-32-series", 640, 420, [] { return Sales(32); }},
        {"bar-wrapped-names", 560, 360, WrappedNames},
        {"bar-negative-missing", 640, 420, [] { return SignsAndGaps(T::Bar2D); }},
        {"bar-labels-above", 640, 420, [] { return Labelled(T::Bar2D, L::AbovePoint); }},
        {"bar-labels-base", 640, 420, [] { return Labelled(T::Bar2D, L::Base); }},
        {"bar-patterns", 640, 300, [] { return Brushes(BrushStyle::Pattern, PatternCount); }},
        {"bar-hatches", 480, 300, [] { return Brushes(BrushStyle::Hatch, HatchCount); }},
        {"bar-framed", 640, 420, FramedLook},
        {"bar-all-axes", 640, 420, AllAxes},
        {"bar-long-title", 480, 360, LongTitle},
        {"bar-legend-top", 480, 320, [] { return LegendAt(LocationType::Top); }},
        {"bar-legend-bottom", 480, 320, [] { return LegendAt(LocationType::Bottom); }},
        {"bar-legend-left", 480, 320, [] { return LegendAt(LocationType::Left); }},
        {"bar-flipped", 640, 420,
         [] {
             Chart chart = Sales(4);
             chart.SetDataSeriesInRow(true);
             return chart;
         }},
        {"line-4-series", 640, 420, [] { return Sales(4, T::Line2D); }},
        {"line-markers", 640, 420, Markers},
        {"line-32-series", 640, 420, [] { return Sales(32, T::Line2D); }},
        {"line-negative-missing", 640, 420, [] { return SignsAndGaps(T::Line2D); }},
        {"line-labels", 640, 420, [] { return Labelled(T::Line2D, L::AbovePoint); }},
        {"line-dense", 640, 420, [] { return Dense(T::Line2D, 5000); }},
        {"area-3-series", 640, 420, [] { return Sales(3, T::Area2D); }},
        {"area-negative-missing", 640, 420, [] { return SignsAndGaps(T::Area2D); }},
        {"step-3-series", 640, 420, [] { return Sales(3, T::Step2D); }},
        {"step-negative-missing", 640, 420, [] { return SignsAndGaps(T::Step2D); }},
        {"bar-stacked", 640, 420, [] { return Stacked(T::Bar2D, false); }},
        {"bar-stacked-signs", 640, 420, [] { return Stacked(T::Bar2D, false, true); }},
        {"bar-shares", 640, 420, [] { return Stacked(T::Bar2D, true); }},
        {"bar-shares-signs", 640, 420, [] { return Stacked(T::Bar2D, true, true); }},
        {"line-stacked", 640, 420, [] { return Stacked(T::Line2D, false); }},
        {"area-stacked", 640, 420, [] { return Stacked(T::Area2D, false); }},
        {"area-shares", 640, 420, [] { return Stacked(T::Area2D, true); }},
        {"step-stacked", 640, 420, [] { return Stacked(T::Step2D, false); }},
        {"combination-stacked", 640, 420, [] { return Stacked(T::Combination2D, false); }},
        {"bar-statistics", 640, 420, [] { return Statistics(Sales(1)); }},
        {"line-statistics", 640, 420, [] { return Statistics(Sales(1, T::Line2D)); }},
        {"xy-statistics", 640, 420, [] { return Statistics(Scatter(2)); }},
        {"combination", 640, 420, [] { return Sales(4, T::Combination2D); }},
        {"combination-two-axes", 640, 420, SecondAxis},
        {"bar-flipped-stacked", 640, 420,
         [] {
             Chart chart = Stacked(T::Bar2D, false);
             chart.SetDataSeriesInRow(true);
             return chart;
         }},
        {"bar-3d", 640, 420, [] { return Space(T::Bar3D); }},
        {"bar-3d-left", 640, 420, [] { return Space(T::Bar3D, 120, 20); }},
        {"bar-3d-orthogonal", 640, 420, [] { return Space(T::Bar3D, 60, 30, Projection::Orthogonal); }},
        {"bar-3d-perspective", 640, 420, [] { return Space(T::Bar3D, 60, 30, Projection::Perspective); }},
        {"bar-3d-behind", 640, 420, [] { return Space(T::Bar3D, 230, 40, Projection::Orthogonal); }},
        {"bar-3d-below", 640, 420, [] { return Space(T::Bar3D, 60, -30, Projection::Perspective); }},
        {"bar-3d-stacked", 640, 420, [] { return InSpace(Stacked(T::Bar2D, false), T::Bar3D); }},
        {"bar-3d-shares", 640, 420, [] { return InSpace(Stacked(T::Bar2D, true), T::Bar3D); }},
        {"bar-3d-signs", 640, 420, [] { return SignsAndGaps(T::Bar3D); }},
        {"bar-3d-stacked-signs", 640, 420, [] { return InSpace(Stacked(T::Bar2D, false, true), T::Bar3D); }},
        {"bar-3d-labels", 640, 420, [] { return Labelled(T::Bar3D, L::AbovePoint); }},
        {"line-3d", 640, 420, [] { return Space(T::Line3D); }},
        {"line-3d-orthogonal", 640, 420, [] { return Space(T::Line3D, 40, 25, Projection::Orthogonal); }},
        {"line-3d-signs", 640, 420, [] { return SignsAndGaps(T::Line3D); }},
        {"area-3d", 640, 420, [] { return Space(T::Area3D); }},
        {"area-3d-perspective", 640, 420, [] { return Space(T::Area3D, 130, 35, Projection::Perspective); }},
        {"area-3d-stacked", 640, 420, [] { return InSpace(Stacked(T::Area2D, false), T::Area3D); }},
        {"area-3d-signs", 640, 420, [] { return SignsAndGaps(T::Area3D); }},
        {"step-3d", 640, 420, [] { return Space(T::Step3D); }},
        {"step-3d-perspective", 640, 420, [] { return Space(T::Step3D, 120, 25, Projection::Perspective); }},
        {"combination-3d", 640, 420, [] { return Space(T::Combination3D); }},
        {"pie-one", 480, 360, [] { return Pies(1, 6, L::Outside); }},
        {"pie-grid", 640, 420, [] { return Pies(7, 4, L::Inside); }},
        {"pie-straight-lines", 480, 360, [] { return ThinSlices(LabelLineStyle::Straight); }},
        {"pie-bent-lines", 480, 360, [] { return ThinSlices(LabelLineStyle::Bent); }},
        {"pie-thin-slices", 480, 360, [] { return ThinSlices(LabelLineStyle::None); }},
        {"pie-plain", 480, 360, [] { return Pies(3, 5, L::None); }},
        {"xy-pairs", 640, 420, [] { return Scatter(4); }},
        {"xy-unpaired", 640, 420, [] { return Scatter(3); }},
        {"bar-logarithmic", 480, 320, [] { return Logarithmic(T::Bar2D); }},
        {"line-logarithmic", 480, 320, [] { return Logarithmic(T::Line2D); }},
        {"xy-logarithmic", 480, 320, [] { return Logarithmic(T::XY2D); }},
        {"bar-3d-logarithmic", 480, 320, [] { return Logarithmic(T::Bar3D); }},
        {"area-logarithmic-stacked", 480, 320,
         [] {
             Chart chart = Logarithmic(T::Area2D);
             chart.Stacking = true;
             return chart;
         }},
        {"one-by-one", 400, 300, [] { return ChartOf(1, 1, [](int, int) { return 42.0; }); }},
        {"one-row", 400, 300, [] { return ChartOf(1, 5, Wave); }},
        {"one-column", 400, 300, [] { return ChartOf(5, 1, Wave); }},
        {"constant", 400, 300,
         [] {
             Chart chart = ChartOf(5, 2, [](int, int) { return 7.0; });
             chart.SetChartType(T::Line2D);
             return chart;
         }},
        {"all-missing", 400, 300, [] { return WithoutValues(5, 2); }},
        {"empty", 400, 300, [] { return Chart(); }},
        {"tiny", 90, 60, [] { return Sales(4); }},
    };
}

} // namespace

const std::vector<Sample>& All() {
    static const std::vector<Sample> samples = [] {
        std::vector<Sample> all = Flat();
        AddSpaceViews(all);
        return all;
    }();
    return samples;
}

const Sample& Named(std::string_view name) {
    for (const Sample& sample : All())
        if (sample.name == name) return sample;
    throw std::logic_error("there is no sample " + std::string(name));
}

} // namespace QmChart6::Samples

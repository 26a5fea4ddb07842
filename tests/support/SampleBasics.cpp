#include "support/SampleKit.h"

#include <cmath>

namespace QmChart6::Samples {

namespace {

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

Chart LongNames() {
    Chart chart = ChartOf(40, 1, Wave);
    for (int row = 1; row <= 40; ++row)
        chart.DataGrid.SetRowLabel(row, QStringLiteral("A Rather Long Category Name, Number %1").arg(row));
    Entitle(chart, QStringLiteral("Forty Long Names"), QStringLiteral("Category"), QStringLiteral("Value"));
    return chart;
}

Chart WrappedNames() {
    Chart chart = ChartOf(5, 2, Wave);
    const QStringList names{QStringLiteral("Fruit and Vegetables"), QStringLiteral("Dairy"),
                            QStringLiteral("Bread and Cakes"), QStringLiteral("Household Goods"),
                            QStringLiteral("Toys and Games")};
    for (int row = 1; row <= 5; ++row) chart.DataGrid.SetRowLabel(row, names[row - 1]);
    Entitle(chart, QStringLiteral("Turnover by Department"), {}, QStringLiteral("Thousands"));
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

Chart SecondAxis() {
    Chart chart =
        ChartOf(12, 2, [](int row, int column) { return column == 1 ? Wave(row, 1) : 0.02 * Wave(row, 2); });
    Entitle(chart, QStringLiteral("Two Axes"), QStringLiteral("Row"), QStringLiteral("Units"));
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

Chart WithoutValues(int rows, int columns) {
    return ChartOf(rows, columns, [](int, int) { return Missing(); });
}

} // namespace

std::vector<Sample> Basics() {
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

} // namespace QmChart6::Samples

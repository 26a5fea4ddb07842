#include "support/SampleKit.h"

#include "chartcontrol/model/Palette.h"

#include <cmath>

namespace QmChart6::Samples {

namespace {

const QStringList Regions{QStringLiteral("North"), QStringLiteral("South"), QStringLiteral("East"),
                          QStringLiteral("West")};

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

double Wave(int row, int column) {
    return std::round(55 + 25 * std::sin(0.6 * row + column) + 12 * std::cos(1.7 * row * column));
}

void Entitle(Chart& chart, const QString& title, const QString& x, const QString& y) {
    chart.Title.Text = title;
    chart.Plot.Axis(AxisId::X).AxisTitle.Text = x;
    chart.Plot.Axis(AxisId::Y).AxisTitle.Text = y;
    chart.Plot.Axis(AxisId::SecondaryY).AxisTitle.Text = y;
}

Chart Sales(int columns, ChartType type) {
    Chart chart = ChartOf(12, columns, Wave);
    for (int row = 1; row <= 12; ++row) chart.DataGrid.SetRowLabel(row, Months[row - 1]);
    for (int column = 1; column <= columns && column <= 4; ++column)
        chart.DataGrid.SetColumnLabel(column, Regions[column - 1]);
    Entitle(chart, QStringLiteral("Sales by Month and Region"), QStringLiteral("Month"),
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

Chart Scatter(int columns) {
    Chart chart = ChartOf(60, columns, [](int row, int column) {
        return column % 2 == 1 ? 20 + 3.1 * row + 9 * std::sin(row * column)
                               : 5 + 0.8 * row + 8 * std::cos(row * 1.3 * column);
    });
    chart.SetChartType(ChartType::XY2D);
    Entitle(chart, QStringLiteral("Scatter"), QStringLiteral("Horsepower"),
            QStringLiteral("Miles per Gallon"));
    for (Series& series : chart.Plot.SeriesCollection) {
        series.ShowLine = false;
        series.SeriesMarker.Show = true;
    }
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

Chart Stacked(ChartType type, bool shares, bool signs) {
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

Chart Space(ChartType type, double rotation, double elevation, Projection projection) {
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

Chart Dark(Chart chart) {
    chart.Backdrop.Fill.Brush.FillColor = {28, 32, 40};
    return chart;
}

Chart WithNames(Chart chart, const QStringList& names) {
    for (int row = 1; row <= names.size(); ++row) chart.DataGrid.SetRowLabel(row, names[row - 1]);
    return chart;
}

Chart WithLabels(Chart chart, LabelLocation location, int component, LabelLineStyle line) {
    for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series) {
        DataPointLabel& label = LookOf(chart, series).DataPointLabel;
        label.Component = component;
        label.LocationType = location;
        label.LineStyle = line;
        label.VtFont.Size = 8;
    }
    return chart;
}

Chart OfKind(ChartType type) {
    if (type == ChartType::Pie2D) return Pies(1, 6, LabelLocation::Outside);
    if (type == ChartType::XY2D) return Scatter(2);
    Chart chart = ChartOf(6, 3, Wave);
    for (int row = 1; row <= 6; ++row) chart.DataGrid.SetRowLabel(row, Months[row - 1].left(3));
    Entitle(chart, QStringLiteral("Sales"), QStringLiteral("Month"), QStringLiteral("Units"));
    chart.SetChartType(type);
    return chart;
}

} // namespace QmChart6::Samples

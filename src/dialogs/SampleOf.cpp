#include "dialogs/SampleOf.h"

#include "chart/ChartFunctions.h"

#include <algorithm>

namespace QmChart6 {

namespace {

/// More would make every choice wait.
constexpr int MostSampleCells = 250'000;

/// A label that leaves room for the chart in a small picture.
QString Shortened(const QString& label) {
    constexpr int Most = 12;
    return label.size() > Most ? label.left(Most - 1) + u'…' : label;
}

/// A value that makes a sample look like a chart: positive, and uneven from one row and column to the next.
double SampleValue(int row, int column) {
    return 20 + (row * 37 + column * 53) % 61;
}

} // namespace

Chart SampleOf(const Chart& chart) {
    Chart sample = chart;
    SetLegendVisible(sample, chart.ShowLegend ? True : False); // from here on a smaller grid changes nothing
    const int mostRows = std::max(1, MostSampleCells / std::max(1, chart.ColumnCount()));
    sample.SetGridSize(std::min(chart.RowCount(), mostRows), chart.ColumnCount());
    for (int column = 1; column <= sample.ColumnCount(); ++column) {
        sample.DataGrid.SetColumnLabel(column, Shortened(chart.DataGrid.ColumnLabel(column)));
        for (int row = 1; row <= sample.RowCount(); ++row)
            sample.DataGrid.SetValue(row, column, SampleValue(row, column));
    }
    for (int row = 1; row <= sample.RowCount(); ++row)
        sample.DataGrid.SetRowLabel(row, Shortened(chart.DataGrid.RowLabel(row)));
    sample.Title.Text.clear();
    sample.Footnote.Text.clear();
    // Places that were chosen for the chart's own size.
    sample.Plot.AutoLayout = true;
    if (sample.Legend.Location.LocationType == LocationType::Custom)
        sample.Legend.Location.LocationType = LocationType::Right;
    return sample;
}

} // namespace QmChart6

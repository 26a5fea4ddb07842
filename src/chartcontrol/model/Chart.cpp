#include "chartcontrol/model/Chart.h"

#include "chartcontrol/model/ChartKinds.h"

namespace QmChart6 {

Chart::Chart() {
    Title.VtFont.Size = 14;
    Title.VtFont.Style = FontBold;
    Title.VtFont.VtColor = {34, 39, 46};
    Footnote.VtFont.Size = 8;
    Footnote.Location.LocationType = LocationType::Bottom;
    Legend.TextLayout.HorzAlignment = HorizontalAlignment::Left;
}

void Chart::SetChartType(ChartType type) {
    chartType_ = type;
    const int count = Plot.SeriesCollection.Count();
    for (int number = 1; number <= count; ++number)
        Plot.SeriesCollection(number).SeriesType = SeriesTypeOf(type, number, count);
}

void Chart::SetGridSize(int rows, int columns) {
    DataGrid.SetSize(rows, columns);
    Row = Column = 1;
    FollowGrid();
    // Exchanging rows and columns is no other data.
    if (LegendFollowsData && !Plot.DataSeriesInRow) ShowLegend = ColumnCount() >= 2;
}

void Chart::SetDataSeriesInRow(bool inRows) {
    Plot.DataSeriesInRow = inRows;
    FollowGrid();
}

void Chart::FollowGrid() {
    Plot.SeriesCollection.Resize(Plot.DataSeriesInRow ? RowCount() : ColumnCount(), chartType_);
}

int Chart::CategoryCount() const {
    return Plot.DataSeriesInRow ? ColumnCount() : RowCount();
}

Values Chart::SeriesValues(int series) const {
    return Plot.DataSeriesInRow ? DataGrid.Row(series) : DataGrid.ColumnWithBlocks(series);
}

const QString& Chart::SeriesName(int series) const {
    return Plot.DataSeriesInRow ? DataGrid.RowLabel(series) : DataGrid.ColumnLabel(series);
}

const QString& Chart::CategoryName(int category) const {
    return Plot.DataSeriesInRow ? DataGrid.ColumnLabel(category) : DataGrid.RowLabel(category);
}

} // namespace QmChart6

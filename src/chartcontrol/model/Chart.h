#pragma once

#include "chartcontrol/model/DataGrid.h"
#include "chartcontrol/model/Plot.h"
#include "chartcontrol/model/Texts.h"

namespace QmChart6 {

/// The whole chart as a value: its table and its look. Copies are cheap and compare whole.
struct Chart {
    Chart();

    QmChart6::DataGrid DataGrid;
    QmChart6::Plot Plot;
    QmChart6::Title Title;
    QmChart6::Title Footnote;
    QmChart6::Legend Legend;
    QmChart6::Backdrop Backdrop;
    bool ShowLegend = false;
    /// While nobody decided on the legend, it is shown from two series on.
    bool LegendFollowsData = true;
    bool Stacking = false;
    /// The current cell, from 1; what RowLabel and ColumnLabel speak of.
    int Row = 1;
    int Column = 1;

    [[nodiscard]] ChartType chartType() const { return chartType_; }
    /// Sets the type of the chart and, with it, of every series.
    void SetChartType(ChartType type);

    [[nodiscard]] int RowCount() const { return DataGrid.RowCount(); }
    [[nodiscard]] int ColumnCount() const { return DataGrid.ColumnCount(); }
    /// An empty grid of that size, the series in step with it. Raises 380 as DataGrid::SetSize.
    void SetGridSize(int rows, int columns);
    /// Exchanges rows and columns as series; series are kept by number, added or dropped at the end.
    void SetDataSeriesInRow(bool inRows);

    // Labels of the current row and column; raise error 9 where there is none.
    [[nodiscard]] const QString& RowLabel() const { return DataGrid.RowLabel(Row); }
    [[nodiscard]] const QString& ColumnLabel() const { return DataGrid.ColumnLabel(Column); }
    void SetRowLabel(const QString& label) { DataGrid.SetRowLabel(Row, label); }
    void SetColumnLabel(const QString& label) { DataGrid.SetColumnLabel(Column, label); }

    [[nodiscard]] int CategoryCount() const;
    /// The values of a series, one for each category; and the names of both. Numbers from 1, error 9 outside.
    [[nodiscard]] Values SeriesValues(int series) const;
    [[nodiscard]] const QString& SeriesName(int series) const;
    [[nodiscard]] const QString& CategoryName(int category) const;

    friend bool operator==(const Chart&, const Chart&) = default;

private:
    void FollowGrid();

    ChartType chartType_ = ChartType::Bar2D;
};

} // namespace QmChart6

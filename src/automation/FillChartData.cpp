#include "automation/FillChartData.h"

#include "base/NumberText.h"
#include "chartcontrol/model/Chart.h"

#include <cmath>
#include <span>
#include <type_traits>
#include <vector>

namespace QmChart6 {

namespace {

template<class T>
inline constexpr bool IsArray = false;
template<class T>
inline constexpr bool IsArray<Array<T>> = true;

template<class T>
double CellOf(const T& value) {
    if constexpr (std::is_same_v<T, Variant>) {
        return value.ToCell();
    } else if constexpr (std::is_same_v<T, QString>) {
        return NumberOfText(value);
    } else if constexpr (std::is_floating_point_v<T>) {
        const double cell = RoundedAsText(value);
        return std::isinf(cell) ? Variant(cell).ToCell() : cell;
    } else {
        return static_cast<double>(value);
    }
}

/// The index-th (from 0) label, or an error 9.
const QString& LabelAt(const Array<QString>& labels, int index) {
    if (labels.Rank() != 1)
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("labels come as a list of %1 or more").arg(index + 1));
    return labels.At(labels.LowerBound() + index);
}

/// Rows and their cells in the order in which they are counted, so that an error leaves all before it filled.
template<class T>
void FillRows(DataGrid& grid, const Array<T>& data, const Array<QString>& rowLabels) {
    const int rows = grid.RowCount();
    const int columns = grid.ColumnCount();
    std::vector<std::span<double>> cells;
    for (int column = 1; column <= columns; ++column) cells.push_back(grid.WritableColumn(column));
    for (int row = 0; row < rows; ++row) {
        grid.SetRowLabel(row + 1, LabelAt(rowLabels, row));
        if (columns == 0) continue;
        const int dataRow = data.LowerBound(1) + row;
        const int firstColumn = data.LowerBound(2);
        for (int column = 0; column < columns; ++column)
            cells[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)] =
                CellOf(data.At(dataRow, firstColumn + column));
    }
}

} // namespace

void FillChartData(Chart& chart, int Rows, int Columns, const Variant& Data, const Array<QString>& RowLabels,
                   const Array<QString>& ColumnLabels) {
    chart.Backdrop.Frame.Style = FrameStyle::ThickOuter;
    chart.Backdrop.Fill.Style = FillStyle::Brush;
    chart.SetGridSize(Rows, Columns);
    for (int column = 1; column <= chart.ColumnCount(); ++column) {
        chart.Column = column;
        chart.SetColumnLabel(LabelAt(ColumnLabels, column - 1));
    }
    std::visit(
        [&](const auto& table) {
            if constexpr (IsArray<std::decay_t<decltype(table)>>)
                FillRows(chart.DataGrid, table, RowLabels);
            else
                throw RuntimeError(ErrorNumber::TypeMismatch,
                                   QStringLiteral("the data is a table of rows and columns"));
        },
        Data.Get());
    chart.DataGrid.Summarize();
    chart.Row = qMax(1, chart.RowCount());
}

} // namespace QmChart6

#pragma once

#include <QString>
#include <QStringList>

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace QmChart6 {

/// A run of values with a stride between them: a column, or a row, of the grid. Not-a-number is a missing
/// value.
struct Values {
    const double* first = nullptr;
    std::ptrdiff_t stride = 1;
    int count = 0;

    [[nodiscard]] double operator[](int index) const { return first[index * stride]; }
};

/// The table behind a chart: numbers by row and column with a label for each, rows and columns from 1.
/// A copy shares the table until one of the two is written.
class DataGrid {
public:
    static constexpr int MaximumCount = 32767;

    DataGrid();

    [[nodiscard]] int RowCount() const { return table_->rows; }
    [[nodiscard]] int ColumnCount() const { return table_->columns; }

    /// An empty grid of that size: no labels, every value missing. Counts outside 0 to 32,767 raise error
    /// 380.
    void SetSize(int rows, int columns);

    // A row or column outside the grid raises error 9 in all of these.
    [[nodiscard]] const QString& RowLabel(int row) const;
    [[nodiscard]] const QString& ColumnLabel(int column) const;
    void SetRowLabel(int row, const QString& label);
    void SetColumnLabel(int column, const QString& label);
    [[nodiscard]] double Value(int row, int column) const;
    void SetValue(int row, int column, double value);

    [[nodiscard]] Values Column(int column) const;
    [[nodiscard]] Values Row(int row) const;
    /// The column's memory, to be filled; good until the grid is copied or resized.
    [[nodiscard]] std::span<double> WritableColumn(int column);

    /// Missing values are equal to each other.
    friend bool operator==(const DataGrid& left, const DataGrid& right);

private:
    struct Table {
        int rows = 0;
        int columns = 0;
        QStringList rowLabels;
        QStringList columnLabels;
        std::vector<double> values; // by column
    };

    Table& Write();
    void RequireRow(int row) const;
    void RequireColumn(int column) const;

    std::shared_ptr<Table> table_;
};

} // namespace QmChart6

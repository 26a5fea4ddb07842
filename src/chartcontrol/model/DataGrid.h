#pragma once

#include "chartcontrol/model/Runs.h"
#include "chartcontrol/model/ValueBlocks.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <memory>
#include <mutex>
#include <span>
#include <vector>

namespace QmChart6 {

/// A run of values with a stride between them: a column, or a row, of the grid. Not-a-number is a missing
/// value.
struct Values {
    const double* first = nullptr;
    std::ptrdiff_t stride = 1;
    int count = 0;
    /// The extremes by blocks, where they are known.
    const ValueBlock* blocks = nullptr;
    /// The extremes of all of them, where they are known.
    const ValueBlock* whole = nullptr;
    /// Where runs picked of these values are kept, if anywhere.
    RunsCache* cache = nullptr;

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
    /// Whether any row, or column, has a label that is not empty.
    [[nodiscard]] bool HasRowLabels() const { return table_->namedRows > 0; }
    [[nodiscard]] bool HasColumnLabels() const { return table_->namedColumns > 0; }
    void SetRowLabel(int row, const QString& label);
    void SetColumnLabel(int column, const QString& label);
    [[nodiscard]] double Value(int row, int column) const;
    void SetValue(int row, int column, double value);

    [[nodiscard]] Values Column(int column) const;
    [[nodiscard]] Values Row(int row) const;
    /// A column with its blocks, which are made when they are first asked for. Good until the column is
    /// written.
    [[nodiscard]] Values ColumnWithBlocks(int column) const;
    /// Makes the blocks of every column now, not when the first picture asks for them.
    void Summarize() const;
    /// The column's memory, to be filled; good until the grid is copied, resized or read.
    [[nodiscard]] std::span<double> WritableColumn(int column);

    /// Missing values are equal to each other.
    friend bool operator==(const DataGrid& left, const DataGrid& right);

private:
    /// What was found out about a column since it was last written.
    struct Summary {
        std::once_flag made;
        std::vector<ValueBlock> blocks;
        ValueBlock whole;
        RunsCache cache;
    };
    struct Table {
        int rows = 0;
        int columns = 0;
        QStringList rowLabels;
        QStringList columnLabels;
        int namedRows = 0; // labels that are not empty
        int namedColumns = 0;
        std::vector<double> values;                      // by column
        std::vector<std::shared_ptr<Summary>> summaries; // by column
    };

    Table& Write();
    void RequireRow(int row) const;
    void RequireColumn(int column) const;

    std::shared_ptr<Table> table_;
};

} // namespace QmChart6

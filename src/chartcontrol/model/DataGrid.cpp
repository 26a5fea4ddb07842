#include "chartcontrol/model/DataGrid.h"

#include "qmchart6/RuntimeError.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

int CheckedCount(int count, const char* what) {
    if (count < 0 || count > DataGrid::MaximumCount)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue,
                           QStringLiteral("the number of %1 is from 0 to %2, not %3")
                               .arg(QString::fromLatin1(what))
                               .arg(DataGrid::MaximumCount)
                               .arg(count));
    return count;
}

/// Keeps count of the labels that are not empty.
void SetLabel(QString& label, const QString& text, int& named) {
    named += (text.isEmpty() ? 0 : 1) - (label.isEmpty() ? 0 : 1);
    label = text;
}

QStringList Blank(int count) {
    QStringList labels;
    labels.resize(count);
    return labels;
}

} // namespace

DataGrid::DataGrid() {
    SetSize(0, 0);
}

void DataGrid::SetSize(int rows, int columns) {
    auto table = std::make_shared<Table>();
    table->rows = CheckedCount(rows, "rows");
    table->columns = CheckedCount(columns, "columns");
    table->rowLabels = Blank(rows);
    table->columnLabels = Blank(columns);
    table->values.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns),
                         std::numeric_limits<double>::quiet_NaN());
    table->summaries.resize(static_cast<std::size_t>(columns));
    for (auto& summary : table->summaries) summary = std::make_shared<Summary>();
    table_ = std::move(table);
}

const QString& DataGrid::RowLabel(int row) const {
    RequireRow(row);
    return table_->rowLabels.at(row - 1);
}

const QString& DataGrid::ColumnLabel(int column) const {
    RequireColumn(column);
    return table_->columnLabels.at(column - 1);
}

void DataGrid::SetRowLabel(int row, const QString& label) {
    RequireRow(row);
    Table& table = Write();
    SetLabel(table.rowLabels[row - 1], label, table.namedRows);
}

void DataGrid::SetColumnLabel(int column, const QString& label) {
    RequireColumn(column);
    Table& table = Write();
    SetLabel(table.columnLabels[column - 1], label, table.namedColumns);
}

double DataGrid::Value(int row, int column) const {
    RequireRow(row);
    return Column(column)[row - 1];
}

void DataGrid::SetValue(int row, int column, double value) {
    RequireRow(row);
    WritableColumn(column)[static_cast<std::size_t>(row) - 1] = value;
}

Values DataGrid::Column(int column) const {
    RequireColumn(column);
    return {table_->values.data() + static_cast<std::ptrdiff_t>(column - 1) * table_->rows, 1, table_->rows,
            nullptr};
}

Values DataGrid::ColumnWithBlocks(int column) const {
    Values values = Column(column);
    Summary& summary = *table_->summaries[static_cast<std::size_t>(column) - 1];
    std::call_once(summary.made, [&] {
        summary.blocks = BlocksOf({values.first, static_cast<std::size_t>(values.count)});
        summary.whole = ExtremesOf(summary.blocks);
    });
    values.blocks = summary.blocks.data();
    values.whole = &summary.whole;
    values.cache = &summary.cache;
    return values;
}

void DataGrid::Summarize() const {
    for (int column = 1; column <= ColumnCount(); ++column) static_cast<void>(ColumnWithBlocks(column));
}

Values DataGrid::Row(int row) const {
    RequireRow(row);
    return {table_->values.data() + (row - 1), table_->rows, table_->columns, {}, {}, {}};
}

std::span<double> DataGrid::WritableColumn(int column) {
    RequireColumn(column);
    Table& table = Write();
    table.summaries[static_cast<std::size_t>(column) - 1] = std::make_shared<Summary>();
    return {table.values.data() + static_cast<std::ptrdiff_t>(column - 1) * table.rows,
            static_cast<std::size_t>(table.rows)};
}

DataGrid::Table& DataGrid::Write() {
    if (table_.use_count() > 1) table_ = std::make_shared<Table>(*table_);
    return *table_;
}

void DataGrid::RequireRow(int row) const {
    if (row < 1 || row > RowCount())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("there is no row %1 among %2").arg(row).arg(RowCount()));
}

void DataGrid::RequireColumn(int column) const {
    if (column < 1 || column > ColumnCount())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("there is no column %1 among %2").arg(column).arg(ColumnCount()));
}

bool operator==(const DataGrid& left, const DataGrid& right) {
    const auto& a = *left.table_;
    const auto& b = *right.table_;
    return &a == &b ||
           (a.rows == b.rows && a.columns == b.columns && a.rowLabels == b.rowLabels &&
            a.columnLabels == b.columnLabels &&
            std::equal(a.values.begin(), a.values.end(), b.values.begin(),
                       [](double x, double y) { return x == y || (std::isnan(x) && std::isnan(y)); }));
}

} // namespace QmChart6

#include "qmchart/TableReader.h"

#include "qmchart/CellNumber.h"
#include "qmchart/CsvRecords.h"
#include "qmchart/InputText.h"
#include "qmchart/Separator.h"

#include "qmchart6/RuntimeError.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace QmChart6 {

namespace {

constexpr qsizetype MostRowsOrColumns = std::numeric_limits<std::int16_t>::max();
constexpr qsizetype MostTextShown = 40;

[[noreturn]] void RaiseNoTable(const QString& reason) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, reason);
}

QString Shown(const QByteArray& cell) {
    const QString text = QString::fromUtf8(cell).simplified();
    return text.size() <= MostTextShown ? text : text.first(MostTextShown) + QStringLiteral("...");
}

bool HasText(const CsvRecord& record) {
    return std::any_of(record.cells.begin(), record.cells.end(),
                       [](const QByteArray& cell) { return !cell.isEmpty(); });
}

/// The records of a table, from its header on, and how they are understood.
class Reader {
public:
    Reader(const QByteArray& text, const TableLayout& layout);
    Table Read();

private:
    void Divide(const QByteArray& text);
    void RequireRoom() const;
    [[nodiscard]] NumberStyle Style() const;
    [[nodiscard]] double Value(const CsvRecord& record, qsizetype column, const NumberStyle& style) const;
    [[nodiscard]] QString ColumnLabel(qsizetype column) const;
    [[nodiscard]] QString RowLabel(qsizetype row) const;

    QList<CsvRecord> records_; ///< without the header
    QList<QByteArray> header_;
    bool hasHeader_;
    qsizetype firstColumn_; ///< of numbers
    qsizetype columns_ = 0; ///< of numbers
    char separator_;
};

Reader::Reader(const QByteArray& text, const TableLayout& layout)
    : hasHeader_(layout.hasHeader), firstColumn_(layout.hasRowLabels ? 1 : 0),
      separator_(layout.separator
                     ? *layout.separator
                     : FindSeparator(text, layout.fileName, layout.hasHeader, layout.hasRowLabels)) {
    Divide(text);
    RequireRoom();
}

void Reader::Divide(const QByteArray& text) {
    CsvRecords read = ReadCsvRecords(text, separator_, std::numeric_limits<qsizetype>::max());
    if (read.malformedLine != 0)
        RaiseNoTable(QStringLiteral("line %1 of the table: a quoted cell begins and ends with one quote, and "
                                    "quotes in it are doubled")
                         .arg(read.malformedLine));
    records_ = std::move(read.records);
    while (!records_.isEmpty() && !HasText(records_.back())) records_.removeLast();
    if (records_.isEmpty()) RaiseNoTable(QStringLiteral("the table is empty"));

    qsizetype cells = 0;
    for (const CsvRecord& record : records_) cells = std::max(cells, record.cells.size());
    if (hasHeader_) {
        header_ = records_.takeFirst().cells;
        cells = header_.size();
    }
    columns_ = cells - firstColumn_;
    for (const CsvRecord& record : records_)
        if (record.cells.size() > cells)
            RaiseNoTable(QStringLiteral("line %1 of the table has %2 cells, its header %3")
                             .arg(record.line)
                             .arg(record.cells.size())
                             .arg(cells));
}

void Reader::RequireRoom() const {
    if (records_.isEmpty()) RaiseNoTable(QStringLiteral("the table has a header and no rows"));
    if (columns_ < 1)
        RaiseNoTable(QStringLiteral(
            "the table has one column, which is taken for row labels; --no-row-labels takes it for numbers"));
    if (records_.size() > MostRowsOrColumns || columns_ > MostRowsOrColumns)
        throw RuntimeError(
            ErrorNumber::InvalidPropertyValue,
            QStringLiteral("the table has %1 rows and %2 columns; a chart takes at most %3 of each")
                .arg(records_.size())
                .arg(columns_)
                .arg(MostRowsOrColumns));
}

NumberStyle Reader::Style() const {
    // A comma between cells is none within a number, unless it is quoted and groups thousands.
    if (separator_ == ',') return {'.', ','};
    NumberStyleFinder finder;
    for (const CsvRecord& record : records_)
        for (qsizetype cell = firstColumn_; cell < record.cells.size(); ++cell)
            finder.Look(record.cells[cell]);
    return finder.Style();
}

double Reader::Value(const CsvRecord& record, qsizetype column, const NumberStyle& style) const {
    const qsizetype cell = firstColumn_ + column;
    if (cell >= record.cells.size() || IsMissing(record.cells[cell]))
        return std::numeric_limits<double>::quiet_NaN();
    const std::optional<double> value = NumberOfCell(record.cells[cell], style);
    if (!value)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("line %1, column %2 of the table: \"%3\" is no number")
                               .arg(record.line)
                               .arg(cell + 1)
                               .arg(Shown(record.cells[cell])));
    return *value;
}

QString Reader::ColumnLabel(qsizetype column) const {
    if (!hasHeader_) return QString::number(column + 1);
    return QString::fromUtf8(header_[firstColumn_ + column]);
}

QString Reader::RowLabel(qsizetype row) const {
    if (firstColumn_ == 0) return QString::number(row + 1);
    return QString::fromUtf8(records_[row].cells.front());
}

Table Reader::Read() {
    const NumberStyle style = Style();
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(records_.size() * columns_));
    std::vector<QString> rowLabels;
    std::vector<QString> columnLabels;
    for (qsizetype row = 0; row < records_.size(); ++row) {
        rowLabels.push_back(RowLabel(row));
        for (qsizetype column = 0; column < columns_; ++column)
            values.push_back(Value(records_[row], column, style));
    }
    for (qsizetype column = 0; column < columns_; ++column) columnLabels.push_back(ColumnLabel(column));

    Table table;
    if (hasHeader_ && firstColumn_ == 1) table.rowTitle = QString::fromUtf8(header_.front());
    table.rows = static_cast<std::int16_t>(records_.size());
    table.columns = static_cast<std::int16_t>(columns_);
    table.rowLabels = Array<QString>(std::move(rowLabels));
    table.columnLabels = Array<QString>(std::move(columnLabels));
    // Whether values hold decimals is looked for from row and column 1 on, so that they begin there.
    table.values = Array<double>::Table(table.rows, table.columns, std::move(values), 1, 1);
    return table;
}

} // namespace

Table ReadTable(const QByteArray& bytes, const TableLayout& layout) {
    return Reader(ToUtf8Text(bytes), layout).Read();
}

} // namespace QmChart6

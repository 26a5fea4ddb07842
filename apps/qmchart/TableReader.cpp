#include "qmchart/TableReader.h"

#include "qmchart/CellNumber.h"
#include "qmchart/ColumnDress.h"
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
    void RequireNoLongerRows(qsizetype cells) const;
    [[nodiscard]] NumberStyle Style() const;
    [[nodiscard]] double Value(const CsvRecord& record, qsizetype column, const NumberStyle& style);
    [[nodiscard]] QString ColumnLabel(qsizetype column) const;
    [[nodiscard]] QString RowLabel(qsizetype row) const;
    [[nodiscard]] QString Unit() const;
    [[nodiscard]] QStringList Warnings() const;

    /// What a message begins with: "sales.csv, line 3".
    [[nodiscard]] QString In(int line) const { return source_ + QStringLiteral(", line %1").arg(line); }
    [[nodiscard]] QString In(int line, qsizetype column) const {
        return source_ + QStringLiteral(", line %1, column %2").arg(line).arg(column);
    }
    [[noreturn]] static void RaiseNoTable(const QString& reason) {
        throw RuntimeError(ErrorNumber::InvalidProcedureCall, reason);
    }

    const TableLayout& layout_;
    QString source_;
    QList<CsvRecord> records_; ///< without the header
    QList<QByteArray> header_;
    bool hasHeader_;
    qsizetype firstColumn_; ///< of numbers
    qsizetype columns_ = 0; ///< of numbers
    char separator_ = ',';
    std::vector<ColumnDress> dresses_;
};

Reader::Reader(const QByteArray& text, const TableLayout& layout)
    : layout_(layout), source_(NameOfInput(layout.fileName)), hasHeader_(layout.hasHeader),
      firstColumn_(layout.hasRowLabels ? 1 : 0) {
    const DeclaredSeparator declared = TakeDeclaredSeparator(text);
    const std::optional<char> given = layout.separator ? layout.separator : declared.separator;
    separator_ =
        given ? *given : FindSeparator(declared.text, layout.fileName, layout.hasHeader, layout.hasRowLabels);
    Divide(declared.text);
    RequireRoom();
}

void Reader::Divide(const QByteArray& text) {
    CsvRecords read = ReadCsvRecords(text, separator_, std::numeric_limits<qsizetype>::max());
    if (read.malformedLine != 0)
        RaiseNoTable(In(read.malformedLine, read.malformedColumn) +
                     QStringLiteral(": a quoted cell begins and ends with one quote, and quotes in it are "
                                    "doubled"));
    records_ = std::move(read.records);
    while (!records_.isEmpty() && !HasText(records_.back())) records_.removeLast();
    if (records_.isEmpty()) RaiseNoTable(source_ + QStringLiteral(": the table is empty"));

    qsizetype cells = 0;
    for (const CsvRecord& record : records_) cells = std::max(cells, record.cells.size());
    if (hasHeader_) {
        header_ = records_.takeFirst().cells;
        cells = header_.size();
    }
    columns_ = cells - firstColumn_;
    RequireNoLongerRows(cells);
}

void Reader::RequireNoLongerRows(qsizetype cells) const {
    for (const CsvRecord& record : records_)
        if (record.cells.size() > cells)
            RaiseNoTable(
                In(record.line) +
                QStringLiteral(": %1 cells, where the header has %2").arg(record.cells.size()).arg(cells));
}

void Reader::RequireRoom() const {
    if (records_.isEmpty()) RaiseNoTable(source_ + QStringLiteral(": the table has a header and no rows"));
    if (columns_ < 1)
        RaiseNoTable(source_ + QStringLiteral(": the table has one column, which is taken for row labels; "
                                              "--no-row-labels takes it for numbers"));
    if (records_.size() > MostRowsOrColumns || columns_ > MostRowsOrColumns)
        throw RuntimeError(
            ErrorNumber::InvalidPropertyValue,
            source_ +
                QStringLiteral(": the table has %1 rows and %2 columns; a chart takes at most %3 of each")
                    .arg(records_.size())
                    .arg(columns_)
                    .arg(MostRowsOrColumns));
}

/// Raises 5 where the numbers of a table can be read in two ways: nobody is served by a chart that is wrong
/// by a factor of a thousand.
NumberStyle Reader::Style() const {
    if (layout_.decimal) return {*layout_.decimal, *layout_.decimal == '.' ? ',' : '.'};
    // A comma between cells is none within a number, unless it is quoted and groups thousands.
    if (separator_ == ',') return {'.', ','};
    NumberStyleFinder finder;
    for (const CsvRecord& record : records_)
        for (qsizetype cell = firstColumn_; cell < record.cells.size(); ++cell)
            finder.Look(record.cells[cell]);
    if (finder.IsOpen())
        RaiseNoTable(QStringLiteral("%1: \"%2\" can be read in two ways, and no other number of the table "
                                    "tells which; --decimal . or --decimal , does")
                         .arg(source_, Shown(finder.OpenCell())));
    return finder.Style();
}

double Reader::Value(const CsvRecord& record, qsizetype column, const NumberStyle& style) {
    const qsizetype cell = firstColumn_ + column;
    if (cell >= record.cells.size() || IsMissing(record.cells[cell]))
        return std::numeric_limits<double>::quiet_NaN();
    const QByteArray& text = record.cells[cell];
    DressedNumber dressed{.number = text, .unit = {}};
    std::optional<double> value = NumberOfCell(text, style);
    if (!value) {
        dressed = Undress(text).value_or(dressed);
        value = NumberOfCell(dressed.number, style);
    }
    const auto mismatch = [&](const QString& reason) {
        return RuntimeError(
            ErrorNumber::TypeMismatch,
            QStringLiteral("%1: \"%2\" %3").arg(In(record.line, cell + 1), Shown(text), reason));
    };
    if (!value) throw mismatch(QStringLiteral("is no number"));
    if (const auto other =
            dresses_[static_cast<std::size_t>(column)].Differs(dressed, *value, text, record.line))
        throw mismatch(QStringLiteral("is not written as \"%1\" in line %2; the numbers of a column have one "
                                      "unit or none, and a minus or brackets")
                           .arg(Shown(other->cell))
                           .arg(other->line));
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

QString Reader::Unit() const {
    const QByteArray unit = dresses_.front().Unit();
    const bool shared = std::all_of(dresses_.begin(), dresses_.end(),
                                    [&](const ColumnDress& dress) { return dress.Unit() == unit; });
    return shared ? QString::fromUtf8(unit) : QString();
}

QStringList Reader::Warnings() const {
    const qsizetype cells = firstColumn_ + columns_;
    qsizetype count = 0;
    QString first;
    for (const CsvRecord& record : records_) {
        if (record.cells.size() >= cells) continue;
        if (count++ > 0) continue;
        first =
            In(record.line) + QStringLiteral(": %1 of %2 cells; those that are not there are missing values")
                                  .arg(record.cells.size())
                                  .arg(cells);
    }
    if (count == 0) return {};
    return {count == 1 ? first : first + QStringLiteral(" (so in %1 rows)").arg(count)};
}

Table Reader::Read() {
    const NumberStyle style = Style();
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(records_.size() * columns_));
    dresses_.resize(static_cast<std::size_t>(columns_));
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
    table.unit = Unit();
    table.warnings = Warnings();
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
    return Reader(ToUtf8Text(bytes, layout.encoding, NameOfInput(layout.fileName)), layout).Read();
}

} // namespace QmChart6

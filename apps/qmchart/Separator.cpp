#include "qmchart/Separator.h"

#include "qmchart/CellNumber.h"
#include "qmchart/CsvRecords.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <tuple>

namespace QmChart6 {

namespace {

constexpr std::array Candidates{',', ';', '\t', '|'};
constexpr qsizetype RowsLookedAt = 100;

/// How well a separator divides a table; the greater the better, from the first member on.
struct Fit {
    double evenRows = 0; ///< share of the rows that have as many cells as the first
    double numbers = 0;  ///< share of the cells where numbers should be that are numbers or missing
    qsizetype columns = 0;

    friend bool operator>(const Fit& a, const Fit& b) {
        return std::tie(a.evenRows, a.numbers, a.columns) > std::tie(b.evenRows, b.numbers, b.columns);
    }
};

bool IsPlainNumber(const QByteArray& cell, char separator) {
    return IsMissing(cell) || NumberOfCell(cell, {'.', ','}) ||
           (separator != ',' && NumberOfCell(cell, {',', '.'}));
}

bool IsNumber(const QByteArray& cell, char separator) {
    if (IsPlainNumber(cell, separator)) return true;
    const std::optional<DressedNumber> dressed = Undress(cell);
    return dressed && IsPlainNumber(dressed->number, separator);
}

Fit FitOf(const CsvRecords& table, char separator, bool hasHeader, bool hasRowLabels) {
    Fit fit;
    if (table.malformedLine != 0 || table.records.isEmpty()) return fit;
    fit.columns = table.records.front().cells.size();
    double even = 0;
    double cells = 0;
    double numbers = 0;
    for (qsizetype row = 0; row < table.records.size(); ++row) {
        const QList<QByteArray>& record = table.records[row].cells;
        even += record.size() == fit.columns ? 1 : 0;
        if (hasHeader && row == 0) continue;
        for (qsizetype column = hasRowLabels ? 1 : 0; column < record.size(); ++column) {
            cells += 1;
            numbers += IsNumber(record[column], separator) ? 1 : 0;
        }
    }
    fit.evenRows = even / static_cast<double>(table.records.size());
    fit.numbers = cells == 0 ? 0 : numbers / cells;
    return fit;
}

} // namespace

DeclaredSeparator TakeDeclaredSeparator(const QByteArray& text) {
    static const QRegularExpression line(QStringLiteral("^\"?sep=([^\"\r\n])\"?(?=[\r\n]|$)"),
                                         QRegularExpression::CaseInsensitiveOption);
    constexpr qsizetype LongestLine = 16;
    const QRegularExpressionMatch match =
        line.match(QString::fromLatin1(text.first(std::min(text.size(), LongestLine))));
    if (!match.hasMatch()) return {text, std::nullopt};
    return {text.sliced(match.capturedLength()), match.captured(1).front().toLatin1()};
}

char FindSeparator(const QByteArray& text, const QString& fileName, bool hasHeader, bool hasRowLabels) {
    if (fileName.endsWith(QLatin1String(".tsv"), Qt::CaseInsensitive)) return '\t';
    char best = 0;
    char unused = 0;
    Fit bestFit;
    for (const char candidate : Candidates) {
        const Fit fit =
            FitOf(ReadCsvRecords(text, candidate, RowsLookedAt), candidate, hasHeader, hasRowLabels);
        if (fit.columns == 1 && fit.evenRows == 1 && unused == 0) unused = candidate;
        if (fit.columns > 1 && fit > bestFit) {
            best = candidate;
            bestFit = fit;
        }
    }
    if (best != 0) return best;
    // A table of one column: a character that is not in it leaves commas to the numbers.
    return unused != 0 ? unused : ',';
}

} // namespace QmChart6

#pragma once

#include <QByteArray>
#include <QList>

namespace QmChart6 {

/// A row of a table as it is written.
struct CsvRecord {
    int line = 0; ///< where it begins, from 1
    QList<QByteArray> cells;
};

/// What was read of a text, and where the cell begins whose quoting is wrong (line 0: nowhere); nothing from
/// there on is read.
struct CsvRecords {
    QList<CsvRecord> records;
    int malformedLine = 0;
    qsizetype malformedColumn = 0; ///< from 1
};

/// Takes comma-separated values apart, or those separated by another character, an ASCII one and not a quote.
/// Blanks around a cell that is not quoted do not count; empty lines are passed over. Stops after
/// `mostRecords`.
CsvRecords ReadCsvRecords(const QByteArray& text, char separator, qsizetype mostRecords);

} // namespace QmChart6

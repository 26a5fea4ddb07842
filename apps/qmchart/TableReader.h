#pragma once

#include "qmchart6/Array.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

namespace QmChart6 {

/// A table of numbers as QMChartArray takes it.
struct Table {
    QString rowTitle; ///< what the rows are: the header's first cell, above the row labels
    std::int16_t rows = 0;
    std::int16_t columns = 0;
    Array<QString> rowLabels;
    Array<QString> columnLabels;
    Array<double> values; ///< not-a-number where a value is missing
};

/// How a table is laid out.
struct TableLayout {
    QString fileName = {};              ///< its ending .tsv tells the separator
    std::optional<char> separator = {}; ///< found out where not given
    bool hasHeader = true;
    bool hasRowLabels = true;
};

/// Reads a table of separated values, RFC 4180 quoting; labels that it does not have are numbers from 1. Rows
/// may be short, and lines without any text at the end do not count. Raises 13 (a cell that is no number,
/// with line, column and text), 380 (more than 32,767 rows or columns) or 5 (no such table: nothing in it,
/// wrong quoting, not UTF-8 or UTF-16 text, a row longer than the header; with the line).
Table ReadTable(const QByteArray& bytes, const TableLayout& layout);

} // namespace QmChart6

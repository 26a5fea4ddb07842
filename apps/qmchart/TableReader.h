#pragma once

#include "qmchart6/Array.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace QmChart6 {

/// A table of numbers as QMChartArray takes it.
struct Table {
    QString unit;         ///< that all its numbers are written with, such as "%"; "" for none
    QStringList warnings; ///< of what was read all the same
    QString rowTitle;     ///< what the rows are: the header's first cell, above the row labels
    std::int16_t rows = 0;
    std::int16_t columns = 0;
    Array<QString> rowLabels;
    Array<QString> columnLabels;
    Array<double> values; ///< not-a-number where a value is missing
};

/// How a table is laid out.
struct TableLayout {
    QString fileName = {};              ///< its ending .tsv tells the separator; messages name it
    QString encoding = {};              ///< as --encoding takes it; "" for UTF-8, or UTF-16 by its mark
    std::optional<char> decimal = {};   ///< '.' or ','; found out where not given
    std::optional<char> separator = {}; ///< found out where not given
    bool hasHeader = true;
    bool hasRowLabels = true;
};

/// Reads a table of separated values, RFC 4180 quoting; labels that it does not have are numbers from 1. A
/// first line "sep=;" names the separator. Rows may be short, which is warned of, and lines without any text
/// at the end do not count. The numbers of a column may all have a unit, and be in brackets where negative.
/// Raises 13 (a cell that is no number, or one unlike the others of its column, with file, line, column and
/// text), 380 (more than 32,767 rows or columns) or 5 (no such table: nothing in it, wrong quoting, not the
/// text that it should be, a row longer than the header, numbers that can be read in two ways; with the
/// place).
Table ReadTable(const QByteArray& bytes, const TableLayout& layout);

} // namespace QmChart6

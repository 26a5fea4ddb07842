#pragma once

#include <QByteArray>
#include <QString>

namespace QmChart6 {

/// The character that separates a table's cells: a tab where the file's name ends in .tsv, otherwise, of
/// comma, semicolon, tab and bar, the one that divides the rows most evenly.
char FindSeparator(const QByteArray& text, const QString& fileName, bool hasHeader, bool hasRowLabels);

} // namespace QmChart6

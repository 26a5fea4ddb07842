#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace QmChart6 {

/// What a first line such as "sep=;" says of the separator, and the text with that line left empty.
struct DeclaredSeparator {
    QByteArray text;
    std::optional<char> separator;
};
DeclaredSeparator TakeDeclaredSeparator(const QByteArray& text);

/// The character that separates a table's cells: a tab where the file's name ends in .tsv, otherwise, of
/// comma, semicolon, tab and bar, the one that divides the rows most evenly.
char FindSeparator(const QByteArray& text, const QString& fileName, bool hasHeader, bool hasRowLabels);

} // namespace QmChart6

#pragma once

#include <QByteArray>
#include <QString>

namespace QmChart6 {

/// The bytes of a file, or of the standard input where the name is "-". Raises 53 (no such file), 75 (a
/// folder), 70 (cannot be read) or 5 (more than a gibibyte).
QByteArray ReadInput(const QString& fileName);

/// The text as UTF-8 without a byte order mark. UTF-16 is told by its mark, anything else is UTF-8. Raises 5
/// where the text is not what it should be, naming the line.
QByteArray ToUtf8Text(const QByteArray& bytes);

} // namespace QmChart6

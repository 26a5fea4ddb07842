#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace QmChart6 {

/// The bytes of a file, or of the standard input where the name is "-". Raises 53 (no such file), 75 (a
/// folder), 70 (cannot be read) or 5 (more than a gibibyte).
QByteArray ReadInput(const QString& fileName);

/// What a message calls it: the name, or "the standard input".
QString NameOfInput(const QString& fileName);

/// The encodings that can be named.
QStringList EncodingNames();

/// The text as UTF-8 without a byte order mark. With no encoding named, UTF-16 is told by its mark and
/// anything else is UTF-8. Raises 5 where the text is not what it should be, naming `source` and the line.
QByteArray ToUtf8Text(const QByteArray& bytes, const QString& encoding = {},
                      const QString& source = QStringLiteral("the table"));

} // namespace QmChart6

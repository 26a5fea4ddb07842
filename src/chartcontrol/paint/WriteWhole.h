#pragma once

#include "qmchart6/RuntimeError.h"

#include <QByteArray>
#include <QString>

namespace QmChart6 {

/// Writes a file whole or not at all: into a temporary file beside it, which then takes its place; a link's
/// target is replaced, not the link. Raises 76 (folder missing), 75 (a folder, not a file, or a failure that
/// has no number of its own, with the system's words), 70 (no rights), 61 (disk full).
void WriteWhole(const QString& fileName, const QByteArray& bytes);

/// The number for what the system said of a file (an errno).
ErrorNumber NumberOfFileError(int systemError);

} // namespace QmChart6

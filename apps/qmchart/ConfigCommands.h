#pragma once

#include "qmchart/CommandLine.h"

namespace QmChart6 {

/// Does what "qmchart config ..." asks for and gives what is to be printed. Raises UsageError and
/// RuntimeError.
QString RunConfigCommand(const CommandLine& line);

/// A name on a line of its own: control characters and backslashes as in C.
QString OnOneLine(const QString& name);

} // namespace QmChart6

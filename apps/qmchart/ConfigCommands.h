#pragma once

#include "qmchart/CommandLine.h"

namespace QmChart6 {

/// Does what "qmchart config ..." asks for and gives what is to be printed. Raises UsageError and
/// RuntimeError.
QString RunConfigCommand(const CommandLine& line);

/// Gives the chart of that graph id the look that the command line names, if it names one.
void UseNamedLook(const CommandLine& line, const QString& graphId);

/// A name on a line of its own: control characters and backslashes as in C.
QString OnOneLine(const QString& name);

} // namespace QmChart6

#pragma once

#include "qmchart/CommandLine.h"

namespace QmChart6 {

/// Does what the command line asks for and gives what is to be printed. Raises RuntimeError.
QString RunCommand(const CommandLine& line);

/// A file name's base as a title: "barley-by-site" is "Barley by site", "co2-monthly" is "CO2 monthly".
QString PresentableTitle(const QString& baseName);

} // namespace QmChart6

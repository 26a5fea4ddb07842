#pragma once

#include "text/Hint.h"

#include <QString>

namespace QmChart6 {

/// A hint in the process' language; in English where the language has no texts.
QString LocalHint(Hint hint);

} // namespace QmChart6

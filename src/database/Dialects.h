#pragma once

#include "database/Dialect.h"

namespace QmChart6 {

/// The dialect of the engine at a place.
std::unique_ptr<Dialect> DialectFor(const DatabaseLocation& location);

} // namespace QmChart6

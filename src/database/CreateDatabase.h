#pragma once

#include "database/Schema.h"

namespace QmChart6 {

/// Makes an empty database of that schema: a new file, or a new schema in a database that is there. Raises 58
/// where there is one already, and otherwise as opening one does.
void CreateDatabase(const QString& location, const Schema& schema);

} // namespace QmChart6

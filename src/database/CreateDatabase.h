#pragma once

#include "database/Schema.h"

namespace QmChart6 {

/// Makes an empty database of that schema: a new file, or a new schema in a database that is there. Raises 58
/// where there is one already, and otherwise as opening one does.
void CreateDatabase(const QString& location, const Schema& schema);

/// Adds a table of the schema, with its indexes, to a database that is there and has the schema's first.
/// False, and nothing done, where it is there already. Raises as opening the database and writing to it do.
bool AddTable(const QString& location, const Schema& schema, const QString& table);

} // namespace QmChart6

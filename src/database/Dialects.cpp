#include "database/Dialects.h"

#include "database/PostgresDialect.h"
#include "database/SqliteDialect.h"

namespace QmChart6 {

std::unique_ptr<Dialect> DialectFor(const DatabaseLocation& location) {
    if (location.server) return std::make_unique<PostgresDialect>(location);
    return std::make_unique<SqliteDialect>(location);
}

} // namespace QmChart6

#include "database/Database.h"

#include "database/Location.h"
#include "database/PostgresDialect.h"
#include "database/SqliteDialect.h"

namespace QmChart6 {

namespace {

/// The dialect of the engine at a place.
std::unique_ptr<Dialect> DialectFor(const DatabaseLocation& location) {
    if (location.server) return std::make_unique<PostgresDialect>(location);
    return std::make_unique<SqliteDialect>(location);
}

} // namespace

Database::Database(const QString& location, const Schema& schema)
    : schema_(schema), connection_(std::make_unique<Connection>(DialectFor(ParseLocation(location)))) {}

Recordset Database::OpenRecordset(const QString& table) {
    return {*connection_, TableOf(schema_, table)};
}

Database::Writing::Writing(Database& database, const QString& firstTable)
    : connection_(*database.connection_) {
    connection_.BeginWriting(TableOf(database.schema_, firstTable));
}

Database::Writing::~Writing() {
    if (open_) connection_.CommitQuietly();
}

void Database::Writing::Finish() {
    open_ = false;
    connection_.Commit();
}

Database::Reading::Reading(Database& database) : connection_(*database.connection_) {
    connection_.BeginReading();
}

Database::Reading::~Reading() {
    connection_.CommitQuietly();
}

} // namespace QmChart6

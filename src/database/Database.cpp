#include "database/Database.h"

#include "database/Dialects.h"
#include "database/Location.h"

namespace QmChart6 {

Database::Database(const QString& location, const Schema& schema)
    : schema_(schema), connection_(std::make_unique<Connection>(DialectFor(ParseLocation(location)))) {}

Recordset Database::OpenRecordset(const QString& table) {
    return {*connection_, TableOf(schema_, table)};
}

std::optional<Recordset> Database::OpenRecordsetIfThere(const QString& table) {
    try {
        return OpenRecordset(table);
    } catch (const RuntimeError& error) {
        if (error.Number() != static_cast<int>(ErrorNumber::TableNotFound)) throw;
        return std::nullopt;
    }
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

void Database::Writing::TakeBack() noexcept {
    open_ = false;
    connection_.RollBackQuietly();
}

Database::Reading::Reading(Database& database) : connection_(*database.connection_) {
    connection_.BeginReading();
}

Database::Reading::~Reading() {
    connection_.CommitQuietly();
}

} // namespace QmChart6

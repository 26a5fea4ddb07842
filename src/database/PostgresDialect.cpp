#include "database/PostgresDialect.h"

#include <QSqlDatabase>
#include <QSqlError>

#include <utility>

namespace QmChart6 {

namespace {

/// The number for a server's code of five characters
/// (https://www.postgresql.org/docs/15/errcodes-appendix.html).
ErrorNumber NumberOf(const QString& state) {
    if (state == QLatin1String("23505")) return ErrorNumber::DuplicateKey;
    if (state == QLatin1String("23502")) return ErrorNumber::InvalidUseOfNull;
    if (state == QLatin1String("42P01")) return ErrorNumber::TableNotFound;
    if (state == QLatin1String("42703")) return ErrorNumber::FieldNotFound;
    if (state == QLatin1String("3D000") || state == QLatin1String("3F000"))
        return ErrorNumber::DatabaseFileNotFound;
    if (state == QLatin1String("55P03") || state == QLatin1String("40P01") || state == QLatin1String("40001"))
        return ErrorNumber::LockedByAnotherUser;
    if (state == QLatin1String("42501") || state == QLatin1String("25006") ||
        state.startsWith(QLatin1String("28")))
        return ErrorNumber::PermissionDenied;
    if (state == QLatin1String("53100")) return ErrorNumber::DiskFull;
    if (state.startsWith(QLatin1String("08")) || state.startsWith(QLatin1String("57P")))
        return ErrorNumber::ServerNotReached;
    return ErrorNumber::DatabaseRefused;
}

/// A connection that fails has no code: the server's words tell which it was.
ErrorNumber NumberOfConnecting(const QString& text) {
    if (text.contains(QLatin1String("database")) && text.contains(QLatin1String("does not exist")))
        return ErrorNumber::DatabaseFileNotFound;
    if (text.contains(QLatin1String("authentication failed")) ||
        text.contains(QLatin1String("no password")) || text.contains(QLatin1String("pg_hba")) ||
        text.contains(QLatin1String("role")))
        return ErrorNumber::PermissionDenied;
    return ErrorNumber::ServerNotReached;
}

} // namespace

PostgresDialect::PostgresDialect(DatabaseLocation location)
    : location_(std::move(location)), server_(*location_.server) {}

QString PostgresDialect::Driver() const {
    return QStringLiteral("QPSQL");
}

void PostgresDialect::Prepare(QSqlDatabase& connection) const {
    connection.setHostName(server_.host);
    connection.setPort(server_.port);
    connection.setDatabaseName(server_.database);
    connection.setUserName(server_.user);
    connection.setPassword(server_.password);
    // Nobody waits for ever: neither for a server that does not answer nor for one that has gone.
    connection.setConnectOptions(
        QStringLiteral("connect_timeout=5;tcp_user_timeout=10000;application_name=QmChart6"));
}

QStringList PostgresDialect::Greeting() const {
    return {QStringLiteral("SET client_min_messages = warning"), QStringLiteral("SET lock_timeout = '5s'"),
            QStringLiteral("SET synchronous_commit = on")};
}

QString PostgresDialect::Farewell() const {
    return {};
}

QString PostgresDialect::Table(const QString& table) const {
    return Quoted(server_.schema) + u'.' + Quoted(table);
}

QString PostgresDialect::ColumnType(FieldKind kind) const {
    switch (kind) {
    case FieldKind::Text:
        return QStringLiteral("text");
    case FieldKind::Boolean:
        return QStringLiteral("boolean");
    case FieldKind::Integer:
        return QStringLiteral("smallint");
    case FieldKind::Long:
        return QStringLiteral("integer");
    case FieldKind::Real:
        return QStringLiteral("real");
    }
    return {};
}

QString PostgresDialect::Key(const FieldDescription& field) const {
    // The C collation folds A to Z only, and sorts by the bytes, as an embedded file does.
    return field.kind == FieldKind::Text ? QStringLiteral("lower(%1 COLLATE \"C\")").arg(Quoted(field.name))
                                         : Quoted(field.name);
}

QString PostgresDialect::KeyParameter(FieldKind kind) const {
    return kind == FieldKind::Text ? QStringLiteral("lower(CAST(? AS text) COLLATE \"C\")")
                                   : QStringLiteral("CAST(? AS integer)");
}

QString PostgresDialect::ProbeQuery() const {
    return QStringLiteral("SELECT 1 FROM pg_namespace WHERE nspname = ?");
}

QVariantList PostgresDialect::ProbeParameters() const {
    return {server_.schema};
}

QVariantList PostgresDialect::CatalogueParameters(const QString& table) const {
    return {table, server_.schema};
}

QString PostgresDialect::ColumnsQuery() const {
    return QStringLiteral("SELECT a.attname FROM pg_attribute a JOIN pg_class c ON c.oid = a.attrelid "
                          "JOIN pg_namespace n ON n.oid = c.relnamespace "
                          "WHERE a.attnum > 0 AND NOT a.attisdropped AND c.relname = ? AND n.nspname = ?");
}

QString PostgresDialect::IndexesQuery() const {
    return QStringLiteral("SELECT indexname FROM pg_indexes WHERE tablename = ? AND schemaname = ?");
}

QStringList PostgresDialect::BeginWriting(const TableDescription& first) const {
    // One writer at a time, so that two who look for a record both find it once one has added it. Readers go
    // on.
    return {QStringLiteral("BEGIN"),
            QStringLiteral("LOCK TABLE %1 IN SHARE ROW EXCLUSIVE MODE").arg(Table(first.name)),
            QStringLiteral("SAVEPOINT kept")};
}

QStringList PostgresDialect::BeginReading() const {
    return {QStringLiteral("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY")};
}

QString PostgresDialect::KeepWrite() const {
    return QStringLiteral("RELEASE SAVEPOINT kept; SAVEPOINT kept");
}

QString PostgresDialect::TakeWriteBack() const {
    return QStringLiteral("ROLLBACK TO SAVEPOINT kept");
}

bool PostgresDialect::IsBusy(const QSqlError& /*error*/) const {
    return false; // the server has waited already
}

RuntimeError PostgresDialect::Translate(const QSqlError& error) const {
    const QString text = error.databaseText().simplified();
    const ErrorNumber number = error.type() == QSqlError::ConnectionError && error.nativeErrorCode().isEmpty()
                                   ? NumberOfConnecting(text)
                                   : NumberOf(error.nativeErrorCode());
    return RuntimeError(number, QStringLiteral("%1: %2").arg(location_.text, text));
}

} // namespace QmChart6

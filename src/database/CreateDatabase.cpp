#include "database/CreateDatabase.h"

#include "database/Connection.h"
#include "database/Dialects.h"
#include "database/Location.h"
#include "database/PostgresDialect.h"
#include "database/SqliteDialect.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryFile>

namespace QmChart6 {

namespace {

/// A connection for the time of the making.
class Maker {
public:
    Maker(const Dialect& dialect, const QString& driver)
        : dialect_(dialect), connection_(QSqlDatabase::addDatabase(driver, Name())) {}
    ~Maker() {
        connection_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(Name());
    }
    Maker(const Maker&) = delete;
    Maker& operator=(const Maker&) = delete;

    [[nodiscard]] QSqlDatabase& Connection() { return connection_; }
    void Open() {
        if (!connection_.open()) throw dialect_.Translate(connection_.lastError());
    }
    void Execute(const QString& statement) {
        QSqlQuery query(connection_);
        if (!query.exec(statement)) throw dialect_.Translate(query.lastError());
    }
    void Close() { connection_.close(); }

private:
    static QString Name() { return QStringLiteral("QmChart6-maker"); }

    const Dialect& dialect_;
    QSqlDatabase connection_;
};

QString TableStatement(const Dialect& dialect, const TableDescription& table) {
    QStringList columns;
    for (const FieldDescription& field : table.fields) {
        const bool key = table.PrimaryKey().fields.contains(field.name);
        columns.append(QStringLiteral("    %1 %2%3")
                           .arg(Quoted(field.name), dialect.ColumnType(field.kind),
                                key ? QStringLiteral(" NOT NULL") : QString()));
    }
    return QStringLiteral("CREATE TABLE %1 (\n%2\n)")
        .arg(dialect.Table(table.name), columns.join(QStringLiteral(",\n")));
}

QString IndexStatement(const Dialect& dialect, const TableDescription& table, const IndexDescription& index) {
    QStringList keys;
    for (const QString& field : index.fields) keys.append(dialect.Key(table.Field(field)));
    return QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)")
        .arg(index.unique ? QStringLiteral("UNIQUE ") : QString(), Quoted(table.IndexName(index)),
             dialect.Table(table.name), keys.join(QStringLiteral(", ")));
}

/// The statements that make a table and its indexes.
QStringList Statements(const Dialect& dialect, const TableDescription& table) {
    QStringList statements{TableStatement(dialect, table)};
    for (const IndexDescription& index : table.indexes)
        statements.append(IndexStatement(dialect, table, index));
    return statements;
}

void MakeTables(Maker& maker, const Dialect& dialect, const Schema& schema) {
    for (const TableDescription& table : schema)
        for (const QString& statement : Statements(dialect, table)) maker.Execute(statement);
}

[[noreturn]] void RaiseExists(const QString& what) {
    throw RuntimeError(ErrorNumber::FileAlreadyExists,
                       QStringLiteral("\"%1\" is there already; nothing was changed").arg(what));
}

/// The file is made whole under another name, so that nobody ever sees a half one.
void CreateFile(const DatabaseLocation& location, const Schema& schema) {
    RequireSearchable(location);
    if (QFileInfo::exists(location.file)) RaiseExists(location.text);
    if (!QFileInfo(location.file).absoluteDir().exists())
        throw RuntimeError(ErrorNumber::PathNotValid,
                           QStringLiteral("there is no folder for \"%1\"").arg(location.text));
    QTemporaryFile made(location.file + QStringLiteral(".XXXXXX"));
    if (!made.open())
        throw RuntimeError(
            ErrorNumber::PermissionDenied,
            QStringLiteral("\"%1\" cannot be made: %2").arg(location.text, made.errorString()));
    made.close();
    const SqliteDialect dialect(location);
    Maker maker(dialect, dialect.Driver());
    maker.Connection().setDatabaseName(made.fileName());
    maker.Open();
    maker.Execute(QStringLiteral("BEGIN"));
    MakeTables(maker, dialect, schema);
    maker.Execute(QStringLiteral("COMMIT"));
    maker.Close();
    // A temporary file is its owner's only; the store is for whom the folder is.
    made.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup |
                        QFileDevice::ReadOther);
    if (!made.rename(location.file)) {
        if (QFileInfo::exists(location.file)) RaiseExists(location.text);
        throw RuntimeError(
            ErrorNumber::PathFileAccess,
            QStringLiteral("\"%1\" cannot be made: %2").arg(location.text, made.errorString()));
    }
    made.setAutoRemove(false);
}

void CreateServerSchema(const DatabaseLocation& location, const Schema& schema) {
    const PostgresDialect dialect(location);
    Maker maker(dialect, dialect.Driver());
    dialect.Prepare(maker.Connection());
    maker.Open();
    QSqlQuery probe(maker.Connection());
    if (!probe.prepare(dialect.ProbeQuery())) throw dialect.Translate(probe.lastError());
    probe.addBindValue(location.server->schema);
    if (!probe.exec()) throw dialect.Translate(probe.lastError());
    if (probe.next()) RaiseExists(location.text);
    probe.clear();
    maker.Execute(QStringLiteral("BEGIN"));
    maker.Execute(QStringLiteral("CREATE SCHEMA %1").arg(Quoted(location.server->schema)));
    MakeTables(maker, dialect, schema);
    maker.Execute(QStringLiteral("COMMIT"));
}

} // namespace

bool AddTable(const QString& location, const Schema& schema, const QString& table) {
    const DatabaseLocation place = ParseLocation(location);
    Connection connection(DialectFor(place));
    connection.BeginWriting(schema.front());
    const Dialect& dialect = connection.Engine();
    const TableDescription& added = TableOf(schema, table);
    QSqlQuery& columns = connection.Run(dialect.ColumnsQuery(), dialect.CatalogueParameters(added.name));
    const bool isThere = connection.Next(columns);
    columns.finish();
    if (!isThere)
        for (const QString& statement : Statements(dialect, added)) connection.Alter(statement);
    connection.Commit();
    return !isThere;
}

void CreateDatabase(const QString& location, const Schema& schema) {
    const DatabaseLocation place = ParseLocation(location);
    if (place.server)
        CreateServerSchema(place, schema);
    else
        CreateFile(place, schema);
}

} // namespace QmChart6

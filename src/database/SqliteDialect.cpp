#include "database/SqliteDialect.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QUrl>

#include <utility>

namespace QmChart6 {

namespace {

// Primary result codes (https://www.sqlite.org/rescode.html); extended ones have them in their low byte.
enum Code {
    Permission = 3,
    Busy = 5,
    Locked = 6,
    ReadOnly = 8,
    InputOutput = 10,
    Malformed = 11,
    Full = 13,
    CannotOpen = 14,
    Constraint = 19,
    NotADatabase = 26
};

int CodeOf(const QSqlError& error) {
    return error.nativeErrorCode().toInt() & 0xff;
}

/// The number that a failure of the engine goes by.
ErrorNumber NumberOf(const QSqlError& error) {
    switch (CodeOf(error)) {
    case Permission:
    case ReadOnly:
        return ErrorNumber::PermissionDenied;
    case Busy:
    case Locked:
        return ErrorNumber::LockedByAnotherUser;
    case InputOutput:
        return ErrorNumber::PathFileAccess;
    case Malformed:
    case NotADatabase:
        return ErrorNumber::NotADatabase;
    case Full:
        return ErrorNumber::DiskFull;
    case CannotOpen:
        return ErrorNumber::PathFileAccess;
    case Constraint:
        return error.databaseText().contains(QLatin1String("UNIQUE")) ? ErrorNumber::DuplicateKey
                                                                      : ErrorNumber::InvalidUseOfNull;
    default:
        return ErrorNumber::DatabaseRefused;
    }
}

/// What the person at the desk can do about it.
QString AdviceFor(ErrorNumber number, const QString& file) {
    switch (number) {
    case ErrorNumber::PermissionDenied:
        return QStringLiteral("\"%1\" or its folder may not be written to by this account").arg(file);
    case ErrorNumber::LockedByAnotherUser:
        return QStringLiteral("another program has kept \"%1\" busy for 5 seconds; try again").arg(file);
    case ErrorNumber::NotADatabase:
        return QStringLiteral("\"%1\" is damaged or something else; put a sound copy in its place").arg(file);
    case ErrorNumber::DiskFull:
        return QStringLiteral("there is no room left where \"%1\" is; make room and save again").arg(file);
    case ErrorNumber::PathFileAccess:
        return QStringLiteral("\"%1\" cannot be read or written").arg(file);
    default:
        return {};
    }
}

} // namespace

SqliteDialect::SqliteDialect(DatabaseLocation location) : location_(std::move(location)) {}

QString SqliteDialect::Driver() const {
    return QStringLiteral("QSQLITE");
}

void SqliteDialect::Prepare(QSqlDatabase& connection) const {
    RequireSearchable(location_);
    const QFileInfo file(location_.file);
    const QString folder = file.absolutePath();
    if (!file.absoluteDir().exists() || file.isDir())
        throw RuntimeError(ErrorNumber::PathNotValid,
                           file.isDir()
                               ? QStringLiteral("\"%1\" is a folder").arg(location_.text)
                               : QStringLiteral("there is no folder \"%1\", where the looks were looked for; "
                                                "\"qmchart config init %1\" makes it and an empty store")
                                     .arg(folder));
    if (!file.exists())
        throw RuntimeError(ErrorNumber::DatabaseFileNotFound,
                           QStringLiteral("there is no \"%1\" in the folder \"%2\", where the looks were "
                                          "looked for; \"qmchart config init %2\" makes an empty one")
                               .arg(file.fileName(), folder));
    if (!file.isReadable())
        throw RuntimeError(ErrorNumber::PermissionDenied,
                           QStringLiteral("\"%1\" may not be read by this account").arg(location_.text));
    if (file.size() == 0)
        throw RuntimeError(
            ErrorNumber::NotADatabase,
            QStringLiteral("\"%1\" is empty; put a sound copy in its place").arg(location_.text));
    const QByteArray path = QUrl::toPercentEncoding(location_.file, "/");
    // The mode opens what is there only: a file that vanishes meanwhile is not made anew.
    connection.setDatabaseName(QStringLiteral("file:%1?mode=rw").arg(QString::fromLatin1(path)));
    // The wait for others is ours, so that a busy file is asked for evenly.
    connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=0"));
}

QStringList SqliteDialect::Greeting() const {
    // A finished transaction survives a loss of power. Its journal is emptied, not deleted: that is one file
    // to write through, where a deletion needs the folder too.
    return {QStringLiteral("PRAGMA synchronous=EXTRA"), QStringLiteral("PRAGMA journal_mode=TRUNCATE")};
}

QString SqliteDialect::Farewell() const {
    // Takes the empty journal away, which the next writer may not be allowed to write to; where somebody is
    // writing just now it stays, and they do the same.
    return QStringLiteral("PRAGMA journal_mode=DELETE");
}

QString SqliteDialect::Table(const QString& table) const {
    return Quoted(table);
}

QString SqliteDialect::ColumnType(FieldKind kind) const {
    switch (kind) {
    case FieldKind::Text:
        return QStringLiteral("TEXT");
    case FieldKind::Boolean:
        return QStringLiteral("BOOLEAN");
    case FieldKind::Integer:
        return QStringLiteral("SMALLINT");
    case FieldKind::Long:
        return QStringLiteral("INTEGER");
    case FieldKind::Real:
        return QStringLiteral("REAL");
    }
    return {};
}

QString SqliteDialect::Key(const FieldDescription& field) const {
    return Quoted(field.name) +
           (field.kind == FieldKind::Text ? QStringLiteral(" COLLATE NOCASE") : QString());
}

QString SqliteDialect::KeyParameter(FieldKind /*kind*/) const {
    return QStringLiteral("?");
}

QString SqliteDialect::ProbeQuery() const {
    return QStringLiteral("SELECT count(*) FROM sqlite_master");
}

QVariantList SqliteDialect::ProbeParameters() const {
    return {};
}

QVariantList SqliteDialect::CatalogueParameters(const QString& table) const {
    return {table};
}

QString SqliteDialect::ColumnsQuery() const {
    return QStringLiteral("SELECT name FROM pragma_table_info(?)");
}

QString SqliteDialect::IndexesQuery() const {
    return QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index' AND tbl_name = ?");
}

QStringList SqliteDialect::BeginWriting(const TableDescription& /*first*/) const {
    return {QStringLiteral("BEGIN IMMEDIATE")};
}

QStringList SqliteDialect::BeginReading() const {
    return {QStringLiteral("BEGIN")};
}

QString SqliteDialect::KeepWrite() const {
    return {}; // a statement that fails takes only itself back
}

QString SqliteDialect::TakeWriteBack() const {
    return {};
}

bool SqliteDialect::IsBusy(const QSqlError& error) const {
    const int code = CodeOf(error);
    return code == Busy || code == Locked;
}

RuntimeError SqliteDialect::Translate(const QSqlError& error) const {
    const ErrorNumber number = NumberOf(error);
    const QString advice = AdviceFor(number, location_.text);
    return RuntimeError(number, advice.isEmpty()
                                    ? error.databaseText()
                                    : QStringLiteral("%1 (%2)").arg(advice, error.databaseText()));
}

} // namespace QmChart6

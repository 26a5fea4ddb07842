#include "support/TestStore.h"

#include "database/CreateDatabase.h"
#include "database/Location.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <stdexcept>

namespace {

/// The URL of the server that the test run has started.
QString ServerUrl() {
    QFile file(QStringLiteral(QMCHART6_POSTGRES_FILE));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no PostgreSQL server: run the tests with ctest, or start it with "
                                 "tests/support/postgres.py start " QMCHART6_POSTGRES_FILE);
    return QString::fromUtf8(file.readLine()).trimmed();
}

} // namespace

void PrintTo(Engine engine, std::ostream* out) {
    *out << (engine == Engine::Sqlite ? "SQLite" : "PostgreSQL");
}

TestStore::TestStore(Engine engine, const QmChart6::Schema& schema) : engine_(engine) {
    if (engine == Engine::Sqlite) {
        folder_ = files_.path() + u'/';
    } else {
        // Tests run side by side on one server, each in a schema of its own.
        static int count = 0;
        const QString own = QStringLiteral("t%1-%2-").arg(QCoreApplication::applicationPid()).arg(++count);
        folder_ = ServerUrl() + own;
        schema_ = own + QStringLiteral("QmConfig.mdb");
    }
    QmChart6::CreateDatabase(Location(), schema);
}

TestStore::~TestStore() {
    if (engine_ == Engine::Postgres) Sql(QStringLiteral("DROP SCHEMA IF EXISTS \"%1\" CASCADE").arg(schema_));
}

QList<QVariantList> TestStore::Sql(QString statement, const QVariantList& values) const {
    const QString name = QStringLiteral("behind");
    QList<QVariantList> rows;
    {
        const bool file = engine_ == Engine::Sqlite;
        QSqlDatabase connection =
            QSqlDatabase::addDatabase(file ? QStringLiteral("QSQLITE") : QStringLiteral("QPSQL"), name);
        const QmChart6::DatabaseLocation place = QmChart6::ParseLocation(Location());
        connection.setDatabaseName(file ? place.file : place.server->database);
        if (!file) {
            connection.setHostName(place.server->host);
            connection.setPort(place.server->port);
            connection.setUserName(place.server->user);
        }
        if (!connection.open()) throw std::runtime_error(connection.lastError().text().toStdString());
        if (!file) QSqlQuery(connection).exec(QStringLiteral("SET client_min_messages = warning"));
        static const QRegularExpression table(QStringLiteral("<(\\w+)>"));
        statement.replace(table,
                          file ? QStringLiteral("\"\\1\"") : QStringLiteral("\"%1\".\"\\1\"").arg(schema_));
        QSqlQuery query(connection);
        const bool prepared = values.isEmpty() || query.prepare(statement);
        for (const QVariant& value : values) query.addBindValue(value);
        if (!prepared || !(values.isEmpty() ? query.exec(statement) : query.exec()))
            throw std::runtime_error((statement + u' ' + query.lastError().text()).toStdString());
        while (query.next()) {
            QVariantList row;
            for (int i = 0; i < query.record().count(); ++i) row.append(query.value(i));
            rows.append(row);
        }
    }
    QSqlDatabase::removeDatabase(name);
    return rows;
}

int TestStore::Count(const QString& table) const {
    return Sql(QStringLiteral("SELECT count(*) FROM <%1>").arg(table)).front().front().toInt();
}

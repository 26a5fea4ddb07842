#include "database/Connection.h"

#include <QDeadlineTimer>
#include <QSqlDatabase>
#include <QSqlError>
#include <QThread>

#include <atomic>
#include <utility>

namespace QmChart6 {

namespace {

constexpr int PatienceInMilliseconds = 5000;
// Short and even, so that whoever waits longest is not the one who asks least.
constexpr unsigned long PauseInMilliseconds = 2;

QString NewName() {
    static std::atomic<int> count = 0;
    return QStringLiteral("QmChart6-%1").arg(++count);
}

} // namespace

Connection::Connection(std::unique_ptr<Dialect> dialect) : dialect_(std::move(dialect)), name_(NewName()) {
    try {
        Open();
    } catch (...) {
        prepared_.clear();
        QSqlDatabase::removeDatabase(name_);
        throw;
    }
}

Connection::~Connection() {
    prepared_.clear();
    if (wrote_ && !dialect_->Farewell().isEmpty())
        QSqlQuery(QSqlDatabase::database(name_, false)).exec(dialect_->Farewell());
    QSqlDatabase::removeDatabase(name_);
}

void Connection::Open() {
    if (!QSqlDatabase::isDriverAvailable(dialect_->Driver()))
        throw RuntimeError(
            ErrorNumber::ActionNotSupported,
            QStringLiteral("Qt's database driver %1 is not installed").arg(dialect_->Driver()));
    QSqlDatabase connection = QSqlDatabase::addDatabase(dialect_->Driver(), name_);
    dialect_->Prepare(connection);
    if (!connection.open()) throw dialect_->Translate(connection.lastError());
    for (const QString& statement : dialect_->Greeting()) Execute(statement);
    if (!Next(Run(dialect_->ProbeQuery(), dialect_->ProbeParameters())))
        throw RuntimeError(
            ErrorNumber::DatabaseFileNotFound,
            QStringLiteral("there is no schema for the looks; \"qmchart config init\" makes one"));
    prepared_.clear();
}

/// Runs an attempt that gives its error, until it succeeds or patience ends.
template<class Attempt>
void Connection::Insist(Attempt&& attempt) {
    QDeadlineTimer patience(PatienceInMilliseconds);
    for (QSqlError error = attempt(); error.type() != QSqlError::NoError; error = attempt()) {
        if (!dialect_->IsBusy(error) || patience.hasExpired()) throw dialect_->Translate(error);
        QThread::msleep(PauseInMilliseconds);
    }
}

QSqlQuery& Connection::Run(const QString& statement, const QVariantList& values) {
    try {
        return RunPrepared(statement, values);
    } catch (const RuntimeError&) {
        // On a server a statement that fails, be it one that reads, would take the whole transaction with it.
        if (writing_ && !dialect_->TakeWriteBack().isEmpty()) Execute(dialect_->TakeWriteBack());
        throw;
    }
}

QSqlQuery& Connection::RunPrepared(const QString& statement, const QVariantList& values) {
    auto found = prepared_.find(statement);
    if (found == prepared_.end()) {
        QSqlQuery query(QSqlDatabase::database(name_, false));
        query.setForwardOnly(true);
        Insist([&] { return query.prepare(statement) ? QSqlError() : query.lastError(); });
        found = prepared_.emplace(statement, std::move(query)).first;
    }
    QSqlQuery& query = found->second;
    Insist([&] {
        for (int i = 0; i < values.size(); ++i) query.bindValue(i, values[i]);
        return query.exec() ? QSqlError() : query.lastError();
    });
    return query;
}

bool Connection::Next(QSqlQuery& query) const {
    if (query.next()) return true;
    if (query.lastError().type() != QSqlError::NoError) throw dialect_->Translate(query.lastError());
    return false;
}

int Connection::Write(const QString& statement, const QVariantList& values) {
    wrote_ = true;
    QSqlQuery& query = Run(statement, values);
    const int changed = query.numRowsAffected();
    query.finish();
    if (writing_ && !dialect_->KeepWrite().isEmpty()) Execute(dialect_->KeepWrite());
    return changed;
}

void Connection::Execute(const QString& statement) {
    QSqlQuery query(QSqlDatabase::database(name_, false));
    query.setForwardOnly(true);
    Insist([&] { return query.exec(statement) ? QSqlError() : query.lastError(); });
}

void Connection::Alter(const QString& statement) {
    wrote_ = true;
    Execute(statement);
}

void Connection::Begin(const QStringList& statements) {
    Execute(statements.front());
    try {
        for (qsizetype i = 1; i < statements.size(); ++i) Execute(statements[i]);
    } catch (...) {
        Execute(QStringLiteral("ROLLBACK"));
        throw;
    }
}

void Connection::BeginWriting(const TableDescription& first) {
    Begin(dialect_->BeginWriting(first));
    writing_ = true;
}

void Connection::BeginReading() {
    Begin(dialect_->BeginReading());
}

void Connection::Commit() {
    writing_ = false;
    try {
        Execute(QStringLiteral("COMMIT"));
    } catch (const RuntimeError&) {
        // Left open, it would hold others up and could not be tidied up after.
        RollBackQuietly();
        throw;
    }
}

void Connection::RollBackQuietly() noexcept {
    writing_ = false;
    try {
        // Some failures have ended it by themselves, which is told as another failure.
        QSqlQuery(QSqlDatabase::database(name_, false)).exec(QStringLiteral("ROLLBACK"));
    } catch (const std::exception&) {
        return; // the error that is on its way tells of the same trouble
    }
}

void Connection::CommitQuietly() noexcept {
    try {
        Commit();
    } catch (const std::exception&) {
        // The error that is on its way tells of the same trouble.
        return;
    }
}

} // namespace QmChart6

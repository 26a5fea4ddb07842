#pragma once

#include "database/Dialect.h"

#include <QSqlQuery>
#include <QVariantList>

#include <map>
#include <memory>

namespace QmChart6 {

/// An open connection to one database. Whatever the engine reports is raised as a RuntimeError; where
/// somebody else is at work, the call waits for up to 5 seconds and then raises 3050.
class Connection {
public:
    explicit Connection(std::unique_ptr<Dialect> dialect);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    [[nodiscard]] const Dialect& Engine() const { return *dialect_; }

    /// Runs a statement; it is kept prepared for the next time. The query is good until the same statement
    /// runs again.
    QSqlQuery& Run(const QString& statement, const QVariantList& values = {});
    /// Goes to a query's next row; false behind the last.
    bool Next(QSqlQuery& query) const;
    /// Runs a statement that changes one record and gives the number of records that it changed.
    int Write(const QString& statement, const QVariantList& values);
    /// Runs a statement once.
    void Execute(const QString& statement);
    /// The same with one that changes the tables themselves.
    void Alter(const QString& statement);

    /// What is written between these two becomes visible to others at once and together; what is read is of
    /// one moment. `first` is the table that writers take turns at.
    void BeginWriting(const TableDescription& first);
    void BeginReading();
    void Commit();
    /// Ends what was begun, keeping what was written, where an error is already on its way.
    void CommitQuietly() noexcept;
    /// Ends it, taking what was written back, where an error is already on its way.
    void RollBackQuietly() noexcept;

private:
    void Open();
    QSqlQuery& RunPrepared(const QString& statement, const QVariantList& values);
    void Begin(const QStringList& statements);
    template<class Attempt>
    void Insist(Attempt&& attempt);

    std::unique_ptr<Dialect> dialect_;
    QString name_;
    std::map<QString, QSqlQuery> prepared_;
    bool writing_ = false;
    bool wrote_ = false;
};

} // namespace QmChart6

#pragma once

#include "database/Schema.h"

#include <QString>
#include <QTemporaryDir>
#include <QVariantList>

#include <gtest/gtest.h>

/// The engines that every test of stored looks runs against.
enum class Engine { Sqlite, Postgres };
void PrintTo(Engine engine, std::ostream* out);

/// A place of its own for a configuration database, empty tables in it, gone at the end. The server is the
/// one that the test run has started.
class TestStore {
public:
    explicit TestStore(Engine engine, const QmChart6::Schema& schema);
    ~TestStore();
    TestStore(const TestStore&) = delete;
    TestStore& operator=(const TestStore&) = delete;

    [[nodiscard]] Engine Kind() const { return engine_; }
    /// The folder's text as hosts give it; and the place of the database.
    [[nodiscard]] const QString& Folder() const { return folder_; }
    [[nodiscard]] QString Location() const { return folder_ + QStringLiteral("QmConfig.mdb"); }

    /// Runs a statement behind the product's back, a table's name in it as <Name>; gives the rows.
    QList<QVariantList> Sql(QString statement, const QVariantList& values = {}) const;
    /// The number of records of a table.
    [[nodiscard]] int Count(const QString& table) const;

private:
    Engine engine_;
    QTemporaryDir files_;
    QString folder_;
    QString schema_;
};

/// A test that runs once for each engine.
class EngineTest : public testing::TestWithParam<Engine> {};

/// The engine's name as a part of a test's.
struct EngineName {
    template<class Info>
    std::string operator()(const Info& info) const {
        return info.param == Engine::Sqlite ? "Sqlite" : "Postgres";
    }
};

#include "database/CreateDatabase.h"
#include "database/Database.h"

#include "support/Raises.h"
#include "support/TestStore.h"
#include "unit/database/SampleSchema.h"

#include <QDir>
#include <QFile>

#include <thread>
#include <unistd.h>

using namespace QmChart6;

namespace {

QString T(const char* text) {
    return QString::fromUtf8(text);
}

class SqliteFileTest : public testing::Test {
protected:
    [[nodiscard]] QString InFolder(const char* name) const { return folder.filePath(QLatin1String(name)); }
    static void Open(const QString& location) { const Database database(location, SampleSchema()); }
    static void Write(const QString& name, const QByteArray& bytes) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray Read(const QString& name) {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static void AddThing(const QString& location, const QString& name) {
        Database database(location, SampleSchema());
        Recordset things = database.OpenRecordset(T("Things"));
        things.AddNew();
        things.SetValue(T("Name"), name);
        things.Update();
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(SqliteFileTest, AFileThatIsNotThereIsError3024AndIsNotMade) {
    EXPECT_RAISES(3024, (Open(InFolder("none.mdb")), 0));
    EXPECT_FALSE(QFile::exists(InFolder("none.mdb")));
}

TEST_F(SqliteFileTest, AFolderThatIsNotThereOrAFolderItselfIsError3044) {
    EXPECT_RAISES(3044, (Open(InFolder("nowhere/QmConfig.mdb")), 0));
    EXPECT_RAISES(3044, (Open(folder.path()), 0));
    EXPECT_RAISES(3044, (Open(QString()), 0));
}

TEST_F(SqliteFileTest, AFileThatIsNoDatabaseOrEmptyIsError3343AndStaysAsItIs) {
    for (const QByteArray& bytes :
         {QByteArray("just text, and long enough to look at").repeated(20), QByteArray()}) {
        Write(InFolder("text.mdb"), bytes);
        EXPECT_RAISES(3343, (Open(InFolder("text.mdb")), 0));
        EXPECT_EQ(Read(InFolder("text.mdb")), bytes);
    }
}

TEST_F(SqliteFileTest, ATruncatedFileIsError3343) {
    CreateDatabase(InFolder("whole.mdb"), SampleSchema());
    const QByteArray whole = Read(InFolder("whole.mdb"));
    Write(InFolder("cut.mdb"), whole.left(whole.size() / 2));
    const auto use = [this] {
        Database database(InFolder("cut.mdb"), SampleSchema());
        for (const char* table : {"Things", "Parts"}) {
            Recordset records = database.OpenRecordset(T(table));
            records.SetIndex(T("PrimaryKey"));
            (void)records.RecordCount();
            (void)records.EndOfFile();
        }
    };
    EXPECT_RAISES(3343, (use(), 0));
}

TEST_F(SqliteFileTest, OddFileNamesAreTakenAsTheyAre) {
    for (const char* name : {"a b.mdb", "50%.mdb", "what?mode=memory.mdb", "a#b.mdb", "ü😀.mdb",
                             "it's \"q\".mdb", "-x.mdb", "a;b.mdb", "a\nb.mdb", "%41.mdb"}) {
        const QString location = folder.filePath(QString::fromUtf8(name));
        CreateDatabase(location, SampleSchema());
        AddThing(location, T("a"));
        EXPECT_TRUE(QFile::exists(location)) << name;
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 10);
}

TEST_F(SqliteFileTest, MakingADatabaseWhereThereIsOneIsError58AndChangesNothing) {
    CreateDatabase(InFolder("a.mdb"), SampleSchema());
    AddThing(InFolder("a.mdb"), T("kept"));
    const QByteArray before = Read(InFolder("a.mdb"));
    EXPECT_RAISES(58, (CreateDatabase(InFolder("a.mdb"), SampleSchema()), 0));
    EXPECT_EQ(Read(InFolder("a.mdb")), before);
    EXPECT_RAISES(3044, (CreateDatabase(InFolder("nowhere/a.mdb"), SampleSchema()), 0));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(T("a.mdb")));
}

TEST_F(SqliteFileTest, AFileThatMayNotBeWrittenCanBeReadAndIsError70WhenWritten) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everything; the program's own test does this as another user";
    CreateDatabase(InFolder("a.mdb"), SampleSchema());
    AddThing(InFolder("a.mdb"), T("a"));
    ASSERT_TRUE(QFile::setPermissions(InFolder("a.mdb"), QFileDevice::ReadOwner));
    Database database(InFolder("a.mdb"), SampleSchema());
    EXPECT_EQ(database.OpenRecordset(T("Things")).RecordCount(), 1);
    EXPECT_RAISES(70, (AddThing(InFolder("a.mdb"), T("b")), 0));
}

TEST_F(SqliteFileTest, AWriterIsWaitedForAndThenTheWriteSucceeds) {
    CreateDatabase(InFolder("a.mdb"), SampleSchema());
    Database other(InFolder("a.mdb"), SampleSchema());
    auto writing = std::make_unique<Database::Writing>(other, T("Things"));
    bool written = false;
    std::thread late([&] {
        AddThing(InFolder("a.mdb"), T("late"));
        written = true;
    });
    // The other thread may or may not have come to its wait; either way it must end well.
    writing->Finish();
    writing.reset();
    late.join();
    EXPECT_TRUE(written);
}

TEST_F(SqliteFileTest, AWriterThatDoesNotEndIsError3050) {
    CreateDatabase(InFolder("a.mdb"), SampleSchema());
    Database other(InFolder("a.mdb"), SampleSchema());
    const Database::Writing writing(other, T("Things"));
    EXPECT_RAISES(3050, (AddThing(InFolder("a.mdb"), T("b")), 0));
}

#include "database/Database.h"

#include "support/Raises.h"
#include "support/TestStore.h"
#include "unit/database/SampleSchema.h"

#include <cmath>
#include <limits>

using namespace QmChart6;

namespace {

QString T(const char* text) {
    return QString::fromUtf8(text);
}

class RecordsetTest : public EngineTest {
protected:
    void AddThing(const QString& name, int large = 0) {
        Recordset things = database.OpenRecordset(T("Things"));
        things.AddNew();
        things.SetValue(T("Name"), name);
        things.SetValue(T("Large"), large);
        things.Update();
    }
    void AddPart(const QString& name, int number, const QString& comment = {}) {
        Recordset parts = database.OpenRecordset(T("Parts"));
        parts.AddNew();
        parts.SetValue(T("Name"), name);
        parts.SetValue(T("Number"), number);
        parts.SetValue(T("Comment"), comment);
        parts.Update();
    }
    [[nodiscard]] Recordset Things() {
        Recordset things = database.OpenRecordset(T("Things"));
        things.SetIndex(T("PrimaryKey"));
        return things;
    }
    [[nodiscard]] QStringList Names() {
        QStringList names;
        Recordset things = Things();
        for (; !things.EndOfFile(); things.MoveNext())
            names.append(std::get<QString>(things.Value(T("Name"))));
        return names;
    }

    TestStore store{GetParam(), SampleSchema()};
    Database database{store.Location(), SampleSchema()};
};

INSTANTIATE_TEST_SUITE_P(Engines, RecordsetTest, testing::Values(Engine::Sqlite, Engine::Postgres),
                         EngineName());

} // namespace

TEST_P(RecordsetTest, AValueOfEveryKindComesBackAsItWas) {
    Recordset things = Things();
    things.AddNew();
    things.SetValue(T("Name"), T("a"));
    things.SetValue(T("Comment"), T("Preis 5 € \"quoted\" 'x' \\ % _ 😀\nline"));
    things.SetValue(T("Good"), true);
    things.SetValue(T("Small"), std::int16_t{-32768});
    things.SetValue(T("Large"), std::int32_t{2147483647});
    things.SetValue(T("Broken"), 0.1F);
    things.Update();
    things.Seek({T("a")});
    ASSERT_FALSE(things.NoMatch());
    EXPECT_EQ(things.Value(T("Comment")), FieldValue(T("Preis 5 € \"quoted\" 'x' \\ % _ 😀\nline")));
    EXPECT_EQ(things.Value(T("Good")), FieldValue(true));
    EXPECT_EQ(things.Value(T("Small")), FieldValue(std::int16_t{-32768}));
    EXPECT_EQ(things.Value(T("Large")), FieldValue(std::int32_t{2147483647}));
    EXPECT_EQ(things.Value(T("Broken")), FieldValue(0.1F));
}

TEST_P(RecordsetTest, EverySinglePrecisionNumberComesBackBitByBit) {
    AddThing(T("a"));
    for (const float number :
         {0.0F, -1.5F, 3.4028235e38F, 1.17549435e-38F, 1.4e-45F, 16777216.0F, 0.33333334F}) {
        Recordset things = Things();
        things.Seek({T("a")});
        things.Edit();
        things.SetValue(T("Broken"), number);
        things.Update();
        things.Seek({T("a")});
        EXPECT_EQ(things.Value(T("Broken")), FieldValue(number)) << number;
    }
}

TEST_P(RecordsetTest, ANumberOutOfRangeIsError6AndAWrongKindError13) {
    Recordset things = Things();
    things.AddNew();
    EXPECT_RAISES(6, (things.SetValue(T("Small"), 32768), 0));
    EXPECT_RAISES(6, (things.SetValue(T("Large"), 3e9F), 0));
    EXPECT_RAISES(6, (things.SetValue(T("Broken"), std::numeric_limits<float>::infinity()), 0));
    EXPECT_RAISES(6, (things.SetValue(T("Broken"), std::nanf("")), 0));
    EXPECT_RAISES(13, (things.SetValue(T("Small"), T("5")), 0));
    EXPECT_RAISES(13, (things.SetValue(T("Small"), true), 0));
    EXPECT_RAISES(13, (things.SetValue(T("Good"), 1), 0));
    EXPECT_RAISES(13, (things.SetValue(T("Name"), 1), 0));
    EXPECT_RAISES(13, (things.SetValue(T("Small"), 1.5F), 0));
}

TEST_P(RecordsetTest, ATextWithAZeroCharacterOrHalfACharacterIsRefused) {
    Recordset things = Things();
    things.AddNew();
    EXPECT_RAISES(5, (things.SetValue(T("Name"), QString(QChar(0))), 0));
    EXPECT_RAISES(5, (things.SetValue(T("Name"), QString(QChar(0xd83d))), 0));
    EXPECT_RAISES(5, (things.Seek({QString(QChar(0))}), 0));
}

TEST_P(RecordsetTest, AnEmptyFieldIsError94) {
    AddThing(T("a"));
    Recordset things = Things();
    things.Seek({T("a")});
    EXPECT_RAISES(94, things.Value(T("Comment")));
}

TEST_P(RecordsetTest, AnEmptyTextIsNoEmptyField) {
    AddPart(T(""), 1, QString());
    Recordset parts = database.OpenRecordset(T("Parts"));
    parts.SetIndex(T("PrimaryKey"));
    parts.Seek({QString(), 1});
    ASSERT_FALSE(parts.NoMatch());
    EXPECT_EQ(parts.Value(T("Comment")), FieldValue(QString()));
}

TEST_P(RecordsetTest, KeysAreFoundWithoutRegardToTheCaseOfAToZOnly) {
    AddThing(T("Straße É"));
    Recordset things = Things();
    things.Seek({T("sTRAßE É")});
    EXPECT_FALSE(things.NoMatch());
    EXPECT_EQ(things.Value(T("Name")), FieldValue(T("Straße É")));
    things.Seek({T("straße é")});
    EXPECT_TRUE(things.NoMatch());
}

TEST_P(RecordsetTest, KeysSortWithoutRegardToTheCaseOfAToZTheSameInBothEngines) {
    for (const char* name :
         {"b", "A", "C", "_", "Z", "ä", "Ä", "a b", "a-b", "", "é", "[", "10", "9", "~", "日本"})
        AddThing(T(name));
    const QStringList expected{T(""),  T("10"), T("9"), T("["), T("_"), T("A"), T("a b"), T("a-b"),
                               T("b"), T("C"),  T("Z"), T("~"), T("Ä"), T("ä"), T("é"),   T("日本")};
    EXPECT_EQ(Names(), expected);
}

TEST_P(RecordsetTest, BlanksAtTheEndsOfAKeyCount) {
    AddThing(T("a"));
    AddThing(T("a "));
    Recordset things = Things();
    EXPECT_EQ(things.RecordCount(), 2);
    things.Seek({T(" a")});
    EXPECT_TRUE(things.NoMatch());
}

TEST_P(RecordsetTest, AKeyThatDiffersInCaseOnlyIsTaken) {
    AddThing(T("Name"));
    EXPECT_RAISES(3022, (AddThing(T("nAME")), 0));
    EXPECT_EQ(store.Count(T("Things")), 1);
}

TEST_P(RecordsetTest, ASeekOnTwoKeysFindsTheOneRecord) {
    AddPart(T("a"), 1, T("first"));
    AddPart(T("a"), 2, T("second"));
    AddPart(T("b"), 2, T("third"));
    Recordset parts = database.OpenRecordset(T("Parts"));
    parts.SetIndex(T("PrimaryKey"));
    parts.Seek({T("A"), 2});
    ASSERT_FALSE(parts.NoMatch());
    EXPECT_EQ(parts.Value(T("Comment")), FieldValue(T("second")));
    parts.Seek({T("a"), 3});
    EXPECT_TRUE(parts.NoMatch());
}

TEST_P(RecordsetTest, ASeekOnAnIndexThatIsNotUniqueFindsTheFirst) {
    AddPart(T("b"), 7);
    AddPart(T("b"), 3);
    Recordset parts = database.OpenRecordset(T("Parts"));
    parts.SetIndex(T("ByName"));
    parts.Seek({T("b")});
    EXPECT_EQ(parts.Value(T("Number")), FieldValue(std::int16_t{3}));
    parts.MoveNext();
    EXPECT_EQ(parts.Value(T("Number")), FieldValue(std::int16_t{7}));
    parts.MoveNext();
    EXPECT_TRUE(parts.EndOfFile());
    EXPECT_RAISES(3021, (parts.MoveNext(), 0));
}

TEST_P(RecordsetTest, AnEditChangesTheFieldsThatWereSetOnly) {
    AddPart(T("a"), 1, T("old"));
    store.Sql(T("UPDATE <Parts> SET \"Name\" = 'A'"));
    Recordset parts = database.OpenRecordset(T("Parts"));
    parts.SetIndex(T("PrimaryKey"));
    parts.Seek({T("a"), 1});
    parts.Edit();
    parts.SetValue(T("Comment"), T("new"));
    EXPECT_EQ(parts.Value(T("Comment")), FieldValue(T("new")));
    parts.Update();
    EXPECT_EQ(store.Sql(T("SELECT \"Name\", \"Number\", \"Comment\" FROM <Parts>")),
              (QList<QVariantList>{{T("A"), 1, T("new")}}));
}

TEST_P(RecordsetTest, DeleteLeavesTheOtherRecords) {
    AddPart(T("a"), 1);
    AddPart(T("a"), 2);
    Recordset parts = database.OpenRecordset(T("Parts"));
    parts.SetIndex(T("PrimaryKey"));
    parts.Seek({T("a"), 1});
    parts.Delete();
    EXPECT_EQ(parts.RecordCount(), 1);
    EXPECT_RAISES(3021, (parts.Delete(), 0));
    EXPECT_RAISES(3021, (parts.Edit(), 0));
    EXPECT_RAISES(3021, parts.Value(T("Comment")));
}

TEST_P(RecordsetTest, AnEmptyTableIsAtItsEndAtOnce) {
    Recordset things = Things();
    EXPECT_EQ(things.RecordCount(), 0);
    EXPECT_TRUE(things.EndOfFile());
    EXPECT_RAISES(3021, things.Value(T("Name")));
}

TEST_P(RecordsetTest, MisuseHasItsNumbers) {
    AddThing(T("a"));
    Recordset things = database.OpenRecordset(T("Things"));
    EXPECT_RAISES(3019, (things.Seek({T("a")}), 0));
    things.SetIndex(T("PrimaryKey"));
    EXPECT_RAISES(5, (things.Seek({T("a"), 1}), 0));
    EXPECT_RAISES(3020, (things.Update(), 0));
    EXPECT_RAISES(3020, (things.SetValue(T("Large"), 1), 0));
    EXPECT_RAISES(3265, things.Value(T("Nothing")));
    EXPECT_RAISES(3015, (things.SetIndex(T("Nothing")), 0));
    EXPECT_RAISES(3078, database.OpenRecordset(T("Nothing")));
}

TEST_P(RecordsetTest, ATableThatIsMissingInTheDatabaseIsError3078) {
    store.Sql(T("DROP TABLE <Parts>"));
    EXPECT_RAISES(3078, database.OpenRecordset(T("Parts")));
}

TEST_P(RecordsetTest, AFieldThatIsMissingInTheDatabaseIsError3265WhenItIsUsed) {
    store.Sql(T("ALTER TABLE <Things> DROP COLUMN \"Good\""));
    AddThing(T("a"), 5);
    Recordset things = Things();
    things.Seek({T("a")});
    EXPECT_EQ(things.Value(T("Large")), FieldValue(5));
    EXPECT_RAISES(3265, things.Value(T("Good")));
    things.Edit();
    EXPECT_RAISES(3265, (things.SetValue(T("Good"), true), 0));
}

TEST_P(RecordsetTest, AnIndexThatIsMissingInTheDatabaseIsError3015) {
    const QString schema =
        GetParam() == Engine::Sqlite ? QString() : T("\"%1\".").arg(store.Location().section(u'/', -1));
    store.Sql(T("DROP INDEX %1\"Parts_ByName\"").arg(schema));
    Recordset parts = database.OpenRecordset(T("Parts"));
    EXPECT_RAISES(3015, (parts.SetIndex(T("ByName")), 0));
}

TEST_P(RecordsetTest, ARecordThatSomebodyElseDeletedIsError3167) {
    AddThing(T("a"));
    Recordset things = Things();
    things.Seek({T("a")});
    things.Edit();
    things.SetValue(T("Large"), 2);
    store.Sql(T("DELETE FROM <Things>"));
    EXPECT_RAISES(3167, (things.Update(), 0));
    EXPECT_RAISES(3167, things.Value(T("Good")));
    EXPECT_RAISES(3167, (things.Delete(), 0));
}

TEST_P(RecordsetTest, NamesAreNeverPartOfAStatement) {
    const QStringList names{T("'; DROP TABLE Things; --"),
                            T("\"; DELETE FROM Things; --"),
                            T("%"),
                            T("_"),
                            T("a\nb"),
                            T("\\"),
                            T("?"),
                            T(":name"),
                            T("$1"),
                            T("😀"),
                            T("  "),
                            T("\t")};
    for (const QString& name : names) AddThing(name);
    EXPECT_EQ(store.Count(T("Things")), names.size());
    for (const QString& name : names) {
        Recordset things = Things();
        things.Seek({name});
        ASSERT_FALSE(things.NoMatch()) << name.toStdString();
        EXPECT_EQ(things.Value(T("Name")), FieldValue(name));
    }
}

TEST_P(RecordsetTest, ANameOfTenThousandLettersIsFoundAgain) {
    const QString name = QString(10000, u'x');
    AddThing(name);
    Recordset things = Things();
    things.Seek({name});
    ASSERT_FALSE(things.NoMatch());
    EXPECT_EQ(things.Value(T("Name")), FieldValue(name));
}

TEST_P(RecordsetTest, ANameThatTheIndexCannotHoldIsKeptOrRefusedWithItsError) {
    // Ten thousand letters that cannot be packed; a server's index holds about 2,700 bytes.
    QString name;
    unsigned state = 1;
    for (int i = 0; i < 10000; ++i) {
        state = state * 1103515245U + 12345U;
        name.append(QChar(u'!' + static_cast<int>((state >> 16U) % 90U)));
    }
    if (GetParam() == Engine::Sqlite) {
        AddThing(name);
        Recordset things = Things();
        things.Seek({name});
        EXPECT_FALSE(things.NoMatch());
    } else {
        EXPECT_RAISES(3146, (AddThing(name), 0));
        EXPECT_EQ(store.Count(T("Things")), 0);
    }
}

TEST_P(RecordsetTest, WhatIsWrittenTogetherIsSeenTogether) {
    {
        Database::Writing writing(database, T("Things"));
        AddThing(T("a"));
        AddThing(T("b"));
        EXPECT_EQ(store.Count(T("Things")), 0);
        writing.Finish();
    }
    EXPECT_EQ(store.Count(T("Things")), 2);
}

TEST_P(RecordsetTest, WhatWasWrittenBeforeAnErrorStaysWritten) {
    const auto write = [this] {
        const Database::Writing writing(database, T("Things"));
        AddThing(T("a"));
        AddThing(T("b"));
        AddThing(T("A"));
    };
    EXPECT_RAISES(3022, (write(), 0));
    EXPECT_EQ(Names(), QStringList({T("a"), T("b")}));
}

TEST_P(RecordsetTest, AWriteGoesOnAfterOneThatFailed) {
    Database::Writing writing(database, T("Things"));
    AddThing(T("a"));
    EXPECT_RAISES(3022, (AddThing(T("a")), 0));
    AddThing(T("b"));
    writing.Finish();
    EXPECT_EQ(store.Count(T("Things")), 2);
}

TEST_P(RecordsetTest, WhatIsReadTogetherIsOfOneMoment) {
    AddThing(T("a"), 1);
    if (GetParam() == Engine::Sqlite) return; // there a writer waits until the reader is done
    const Database::Reading reading(database);
    Recordset things = Things();
    things.Seek({T("a")});
    store.Sql(T("UPDATE <Things> SET \"Large\" = 2"));
    EXPECT_EQ(things.Value(T("Large")), FieldValue(1));
}

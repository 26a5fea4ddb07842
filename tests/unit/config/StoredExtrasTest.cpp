#include "StoreTest.h"

#include "config/Catalogue.h"
#include "config/CopyLooks.h"
#include "config/Look.h"
#include "config/LookJson.h"
#include "config/StoredLook.h"
#include "database/CreateDatabase.h"

using namespace QmChart6;

namespace {

class StoredExtrasTest : public StoreTest {
protected:
    StoredExtrasTest() { Fill(viewer, 3, 2); }

    void MakeOlder() { store.Sql(T("DROP TABLE <LookExtras>")); }
    [[nodiscard]] Look Stored(const char* name) const {
        Database database(store.Location(), ConfigurationSchema());
        return ReadLook(database, T(name));
    }
    /// Gives the viewer a logarithmic axis and lines of its own, as a look would.
    void DressUp() {
        Look look = ReadLookJson(R"({"Beyond": [
            {"Element": "Axis 1", "Field": "Logarithmic", "Value": true},
            {"Element": "Axis 1", "Field": "LabelFormat", "Value": "it's \"0\" ü"},
            {"Element": "Series", "Field": "LineWidth", "Value": 2.25}]})")
                        .look;
        ASSERT_TRUE(ApplyLook(viewer.look, look, true));
    }
};
INSTANTIATE_TEST_SUITE_P(Engines, StoredExtrasTest, testing::Values(Engine::Sqlite, Engine::Postgres),
                         EngineName());

} // namespace

TEST_P(StoredExtrasTest, APlainLookStoresNone) {
    Save(viewer, "Plain");
    EXPECT_EQ(Count("LookExtras"), 0);
}

TEST_P(StoredExtrasTest, TheyComeBackWithTheirLookAndGoWithThePlainOne) {
    Save(viewer, "Plain");
    DressUp();
    Save(viewer, "Log");
    EXPECT_EQ(Count("LookExtras"), 3);
    LoadConfiguration(viewer, T("Log"), true);
    const LookState saved = viewer.look;
    LoadConfiguration(viewer, T("Plain"), true);
    EXPECT_EQ(viewer.Model().Plot.Axis(AxisId::Y).AxisScale.Type, ScaleType::Linear);
    EXPECT_EQ(viewer.Model().Plot.Axis(AxisId::Y).Labels.Item(1).Format, "0");
    EXPECT_EQ(viewer.Model().Plot.SeriesCollection(1).LinePen.Width, 1.5);
    LoadConfiguration(viewer, T("log"), true);
    EXPECT_EQ(viewer.look, saved);
    EXPECT_TRUE(Errors().isEmpty());
}

TEST_P(StoredExtrasTest, SavingReplacesThem) {
    DressUp();
    Save(viewer, "Look");
    viewer.Model().Plot.Axis(AxisId::Y).AxisScale.Type = ScaleType::Linear;
    viewer.Model().Plot.XGap = 20;
    Save(viewer, "LOOK");
    EXPECT_EQ(store.Sql(T("SELECT \"Field\" FROM <LookExtras> ORDER BY \"Field\"")),
              (QList<QVariantList>{{T("LabelFormat")}, {T("LineWidth")}, {T("XGap")}}));
    EXPECT_EQ(Count("ChartConfigurations"), 1);
}

TEST_P(StoredExtrasTest, DeletingALookDeletesItsOwnOnly) {
    DressUp();
    Save(viewer, "Look");
    Save(viewer, "Look 2");
    DeleteConfiguration(T("LOOK"));
    EXPECT_TRUE(Errors().isEmpty());
    EXPECT_EQ(Stored("Look 2").SaidBeyond().size(), 3U);
    EXPECT_EQ(Count("LookExtras"), 3);
}

TEST_P(StoredExtrasTest, AStoreWithoutTheirTableKeepsTheRest) {
    MakeOlder();
    DressUp();
    viewer.Model().Title.Text = T("Kept");
    Save(viewer, "Look");
    EXPECT_TRUE(Errors().isEmpty());
    EXPECT_EQ(viewer.status, "Configuration Saved, but for 3 properties that this store has no place for");
    EXPECT_EQ(FillConfigurationList(T("Look")).selected, 0);
    LoadConfiguration(viewer, T("Look"), true);
    EXPECT_EQ(viewer.Model().Title.Text, "Kept");
    EXPECT_EQ(viewer.Model().Plot.Axis(AxisId::Y).AxisScale.Type, ScaleType::Linear);
    DeleteConfiguration(T("Look"));
    EXPECT_TRUE(Errors().isEmpty());
    EXPECT_FALSE(ConfigurationExists(T("Look")));
}

TEST_P(StoredExtrasTest, AnOlderStoreGetsTheTableOnceAndLosesNothing) {
    Save(viewer, "Look");
    MakeOlder();
    EXPECT_TRUE(AddTable(store.Location(), ConfigurationSchema(), T("LookExtras")));
    EXPECT_FALSE(AddTable(store.Location(), ConfigurationSchema(), T("LookExtras")));
    EXPECT_TRUE(ConfigurationExists(T("Look")));
    DressUp();
    Save(viewer, "Look");
    EXPECT_EQ(Stored("Look").SaidBeyond().size(), 3U);
    EXPECT_EQ(Count("ChartConfigurations"), 1);
}

TEST_P(StoredExtrasTest, WhatNoProgramStoredEndsTheLoadingWithAMessageBehindAllElse) {
    viewer.Model().Title.Text = T("Stored");
    Save(viewer, "Look");
    store.Sql(T("INSERT INTO <LookExtras> VALUES ('Look', 'Axis 1', 'Logarithmic', 'perhaps')"));
    viewer.Model().Title.Text = T("Other");
    LoadConfiguration(viewer, T("Look"), true);
    ASSERT_EQ(Errors().size(), 1);
    EXPECT_TRUE(Errors().front().startsWith(T("Error 13: "))) << Errors().front().toStdString();
    EXPECT_EQ(viewer.Model().Title.Text, "Stored");
}

TEST_P(StoredExtrasTest, CopiesHaveThoseOfTheirLooksAndTellWhatFoundNoPlace) {
    const TestStore other(Engine::Sqlite, ConfigurationSchema());
    DressUp();
    Save(viewer, "Look");
    EXPECT_EQ(CopyLooks(store.Location(), other.Location()).valuesNotKept, 0);
    EXPECT_EQ(other.Count(T("LookExtras")), 3);
    viewer.look = TestViewer().look;
    Fill(viewer, 3, 2);
    Save(viewer, "Look");
    EXPECT_EQ(CopyLooks(store.Location(), other.Location()).valuesNotKept, 0);
    EXPECT_EQ(other.Count(T("LookExtras")), 0);
    other.Sql(T("DROP TABLE <LookExtras>"));
    DressUp();
    Save(viewer, "Look");
    EXPECT_EQ(CopyLooks(store.Location(), other.Location()).valuesNotKept, 3);
}

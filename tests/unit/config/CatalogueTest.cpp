#include "StoreTest.h"

#include "config/Catalogue.h"
#include "config/CopyLooks.h"

using namespace QmChart6;

namespace {

class CatalogueTest : public StoreTest {
protected:
    void SaveFor(const char* graphId, const char* name) {
        viewer.graphId = T(graphId);
        Save(viewer, name);
    }
};
INSTANTIATE_TEST_SUITE_P(Engines, CatalogueTest, testing::Values(Engine::Sqlite, Engine::Postgres),
                         EngineName());

} // namespace

TEST_P(CatalogueTest, BindingAgainReplacesTheBinding) {
    BindChartToConfiguration(viewer, T("One"));
    BindChartToConfiguration(viewer, T("Two"));
    EXPECT_EQ(viewer.config, "Two");
    EXPECT_EQ(store.Sql(T("SELECT \"ChartId\", \"ConfigId\" FROM <Charts>")),
              (QList<QVariantList>{{T("SALES"), T("Two")}}));
}

TEST_P(CatalogueTest, ANameIsSetOnTheViewerEvenWhereTheDatabaseFails) {
    store.Sql(T("DROP TABLE <Charts>"));
    BindChartToConfiguration(viewer, T("One"));
    EXPECT_EQ(viewer.config, "One");
    ASSERT_EQ(Errors().size(), 1);
    EXPECT_TRUE(Errors().front().startsWith(T("Error 3078: ")));
}

TEST_P(CatalogueTest, DeletingANameWithoutRecordsDoesNothingAndReportsNothing) {
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    DeleteConfiguration(T("Other"));
    EXPECT_TRUE(Errors().isEmpty());
    EXPECT_EQ(Count("ChartConfigurations"), 1);
    EXPECT_EQ(Count("Charts"), 1);
}

TEST_P(CatalogueTest, DeletingALookRemovesItsRecordsAndTheBindingsOfAllChartsAndTheyGetTheDefaultLook) {
    Fill(viewer, 2, 2);
    SaveFor("A", "Look");
    SaveFor("B", "look");
    SaveFor("C", "Other");
    DeleteConfiguration(T("LOOK"));
    EXPECT_EQ(store.Sql(T("SELECT \"ChartId\" FROM <Charts>")), (QList<QVariantList>{{T("C")}}));
    EXPECT_EQ(Count("ChartConfigurations"), 1);
    EXPECT_EQ(Count("SeriesConfigurations"), 2);
    EXPECT_EQ(Count("ColumnsConfigurations"), 2);
    EXPECT_EQ(Count("AxesConfigurations"), 4);

    TestViewer later;
    Fill(later, 2, 2);
    const Chart before = later.Model();
    later.graphId = T("A");
    LoadChartConfiguration(later, true);
    EXPECT_EQ(later.Model(), before);
}

TEST_P(CatalogueTest, DeletingDoesNotChangeAnOpenViewersName) {
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    DeleteConfiguration(T("Look"));
    EXPECT_EQ(viewer.config, "Look");
    SaveConfiguration(viewer);
    EXPECT_TRUE(ConfigurationExists(T("Look")));
}

TEST_P(CatalogueTest, DeletingWithATableMissingLeavesEverything) {
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    store.Sql(T("DROP TABLE <AxesConfigurations>"));
    DeleteConfiguration(T("Look"));
    EXPECT_EQ(Errors().size(), 1);
    EXPECT_EQ(Count("ColumnsConfigurations"), 2);
    EXPECT_EQ(Count("Charts"), 1);
}

TEST_P(CatalogueTest, NamesAreListedInKeyOrderWithTheCurrentOneSelected) {
    for (const char* name : {"beta", "Alpha", "Gamma", "10", "ä"}) Save(viewer, name);
    const ConfigurationList list = FillConfigurationList(T("GAMMA"));
    EXPECT_EQ(list.names, QStringList({T("10"), T("Alpha"), T("beta"), T("Gamma"), T("ä")}));
    EXPECT_EQ(list.selected, 3);
    EXPECT_EQ(FillConfigurationList(T("delta")).selected, -1);
}

TEST_P(CatalogueTest, AnEmptyCatalogueGivesAnEmptyListWithNothingSelected) {
    const ConfigurationList list = FillConfigurationList(QString());
    EXPECT_TRUE(list.names.isEmpty());
    EXPECT_EQ(list.selected, -1);
    EXPECT_TRUE(Errors().isEmpty());
}

TEST_P(CatalogueTest, AListThatCannotBeReadIsEmptyAndItsErrorShown) {
    store.Sql(T("DROP TABLE <ChartConfigurations>"));
    EXPECT_TRUE(FillConfigurationList(QString()).names.isEmpty());
    EXPECT_FALSE(ConfigurationExists(T("Look")));
    EXPECT_EQ(Errors().size(), 2);
}

TEST_P(CatalogueTest, TheWholeStoreIsCopiedToEitherEngine) {
    Fill(viewer, 2, 3);
    SaveFor("A", "One");
    SaveFor("B", "Two");
    const Engine other = GetParam() == Engine::Sqlite ? Engine::Postgres : Engine::Sqlite;
    const TestStore target(other, ConfigurationSchema());
    const CopiedLooks copied = CopyLooks(store.Location(), target.Location());
    EXPECT_EQ(copied.looks, 2);
    EXPECT_EQ(copied.bindings, 2);
    (void)CopyLooks(store.Location(), target.Location());
    for (const TableDescription& table : ConfigurationSchema()) {
        QStringList columns;
        for (const FieldDescription& field : table.fields) columns.append(u'"' + field.name + u'"');
        const QString all = T("SELECT %1 FROM <%2> ORDER BY 1, 2").arg(columns.join(u','), table.name);
        QList<QVariantList> here = store.Sql(all);
        QList<QVariantList> there = target.Sql(all);
        ASSERT_EQ(here.size(), there.size()) << table.name.toStdString();
        for (qsizetype row = 0; row < here.size(); ++row)
            for (qsizetype column = 0; column < columns.size(); ++column) {
                const FieldKind kind = table.fields[static_cast<std::size_t>(column)].kind;
                EXPECT_EQ(FromDriver(here[row][column], kind, columns[column]),
                          FromDriver(there[row][column], kind, columns[column]));
            }
    }
}

#include "StoreTest.h"

#include "config/Look.h"
#include "desktop/CurrentDesktop.h"

using namespace QmChart6;

namespace {

class SaveTest : public StoreTest {};
INSTANTIATE_TEST_SUITE_P(Engines, SaveTest, testing::Values(Engine::Sqlite, Engine::Postgres), EngineName());

} // namespace

TEST_P(SaveTest, WritesARecordForTheChartEachColumnEachSeriesAndFourAxes) {
    Fill(viewer, 3, 2);
    Save(viewer, "Look");
    EXPECT_EQ(Count("ChartConfigurations"), 1);
    EXPECT_EQ(Count("ColumnsConfigurations"), 2);
    EXPECT_EQ(Count("SeriesConfigurations"), 2);
    EXPECT_EQ(Count("AxesConfigurations"), 4);
    EXPECT_TRUE(Errors().isEmpty());
}

TEST_P(SaveTest, BindsTheChartToTheNameAndReportsIt) {
    Fill(viewer, 3, 2);
    Save(viewer, "Look");
    EXPECT_EQ(store.Sql(T("SELECT \"ChartId\", \"ConfigId\" FROM <Charts>")),
              (QList<QVariantList>{{T("SALES"), T("Look")}}));
    EXPECT_EQ(viewer.status, "Configuration Saved");
    EXPECT_EQ(viewer.config, "Look");
}

TEST_P(SaveTest, ReportsInTheLanguageOfTheProcess) {
    SetLanguageCode(2);
    Fill(viewer, 3, 2);
    Save(viewer, "Look");
    EXPECT_EQ(viewer.status, LocalText(TextKey::ConfigurationSaved));
    SetLanguageCode(0);
    EXPECT_NE(viewer.status, LocalText(TextKey::ConfigurationSaved));
}

TEST_P(SaveTest, AMaximizedViewerIsRestoredWhileItsSizeIsReadAndMaximizedAgain) {
    Fill(viewer, 2, 2);
    viewer.look.maximized = true;
    Save(viewer, "Look");
    EXPECT_EQ(viewer.windowLog, QStringList({T("restored"), T("maximized")}));
    const QVariantList row =
        store.Sql(T("SELECT \"ChartMaximized\", \"ChartHeight\", \"ChartWidth\" FROM <ChartConfigurations>"))
            .front();
    EXPECT_TRUE(row[0].toBool());
    EXPECT_EQ(row[1].toDouble(), viewer.look.height);
    EXPECT_EQ(row[2].toDouble(), viewer.look.width);
}

TEST_P(SaveTest, ANormalViewerIsLeftAsItIs) {
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    EXPECT_TRUE(viewer.windowLog.isEmpty());
}

TEST_P(SaveTest, AnErrorBetweenTheTwoChangesOfTheWindowLeavesItNormal) {
    store.Sql(T("ALTER TABLE <ChartConfigurations> DROP COLUMN \"ChartHeight\""));
    Fill(viewer, 2, 2);
    viewer.look.maximized = true;
    Save(viewer, "Look");
    EXPECT_FALSE(viewer.look.maximized);
    ASSERT_EQ(Errors().size(), 1);
    EXPECT_TRUE(Errors().front().startsWith(T("Error 3265: ")));
    EXPECT_EQ(viewer.status, "");
}

TEST_P(SaveTest, AnExistingNameIsOverwrittenItsOtherRecordsStayAndItIsStillReported) {
    Fill(viewer, 2, 4);
    Save(viewer, "Look");
    Fill(viewer, 2, 2);
    viewer.Model().Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).Brush.FillColor = {1, 2, 3};
    viewer.status.clear();
    Save(viewer, "LOOK");
    EXPECT_EQ(viewer.status, "Configuration Saved");
    EXPECT_EQ(Count("ChartConfigurations"), 1);
    EXPECT_EQ(Count("SeriesConfigurations"), 4);
    EXPECT_EQ(Count("ColumnsConfigurations"), 4);
    EXPECT_EQ(Count("AxesConfigurations"), 4);
    EXPECT_EQ(
        store.Sql(
            T("SELECT \"SeriesColorRed\", \"ConfigId\" FROM <SeriesConfigurations> WHERE \"SeriesId\" = 1")),
        (QList<QVariantList>{{1, T("Look")}}));
}

TEST_P(SaveTest, AChartWithoutSeriesWritesNoSeriesAndFourAxes) {
    Fill(viewer, 0, 0);
    Save(viewer, "Look");
    EXPECT_EQ(Count("SeriesConfigurations"), 0);
    EXPECT_EQ(Count("ColumnsConfigurations"), 0);
    EXPECT_EQ(Count("AxesConfigurations"), 4);
    EXPECT_EQ(viewer.status, "Configuration Saved");
}

TEST_P(SaveTest, LeavesTheChartsCurrentColumnAtTheLast) {
    Fill(viewer, 2, 5);
    viewer.Model().Column = 2;
    Save(viewer, "Look");
    EXPECT_EQ(viewer.Model().Column, 5);
}

TEST_P(SaveTest, MeasuresTheViewInDegrees) {
    Fill(viewer, 2, 2);
    viewer.Model().Plot.AngleUnit = AngleUnit::Gradians;
    Save(viewer, "Look");
    EXPECT_EQ(viewer.Model().Plot.AngleUnit, AngleUnit::Degrees);
}

TEST_P(SaveTest, AnErrorEndsItAndWhatWasWrittenStays) {
    store.Sql(T("ALTER TABLE <SeriesConfigurations> DROP COLUMN \"SeriesIndex\""));
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    ASSERT_EQ(Errors().size(), 1);
    EXPECT_TRUE(Errors().front().startsWith(T("Error 3265: Field not found")));
    EXPECT_EQ(desktop.messages.front().buttons, MessageButtons::Ok);
    EXPECT_EQ(viewer.status, "");
    EXPECT_EQ(Count("Charts"), 1);
    EXPECT_EQ(Count("ChartConfigurations"), 1);
    EXPECT_EQ(Count("ColumnsConfigurations"), 2);
    EXPECT_EQ(Count("SeriesConfigurations"), 0);
    EXPECT_EQ(Count("AxesConfigurations"), 0);
}

TEST_P(SaveTest, ATableThatIsMissingEndsItBeforeAnythingIsWritten) {
    store.Sql(T("DROP TABLE <AxesConfigurations>"));
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    ASSERT_EQ(Errors().size(), 1);
    EXPECT_TRUE(Errors().front().startsWith(T("Error 3078: ")));
    EXPECT_EQ(Count("Charts"), 0);
    EXPECT_EQ(Count("ChartConfigurations"), 0);
}

TEST_P(SaveTest, ABindingThatFailsIsToldAndTheLookIsSavedAllTheSame) {
    store.Sql(T("DROP TABLE <Charts>"));
    if (GetParam() == Engine::Postgres) {
        // A table that the server itself refuses to be asked for a name.
        store.Sql(T("CREATE TABLE <Charts> (\"ChartId\" integer, \"ConfigId\" text)"));
        store.Sql(T("CREATE INDEX \"Charts_PrimaryKey\" ON <Charts> (\"ChartId\")"));
    }
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    EXPECT_EQ(Errors().size(), 1);
    EXPECT_EQ(Count("ChartConfigurations"), 1);
    EXPECT_EQ(Count("AxesConfigurations"), 4);
    EXPECT_EQ(viewer.status, "Configuration Saved");
}

TEST_P(SaveTest, WithoutTheTableOfBindingsTheLookIsSavedAllTheSame) {
    store.Sql(T("DROP TABLE <Charts>"));
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    ASSERT_EQ(Errors().size(), 1);
    EXPECT_TRUE(Errors().front().startsWith(T("Error 3078: ")));
    EXPECT_EQ(Count("ChartConfigurations"), 1);
    EXPECT_EQ(Count("AxesConfigurations"), 4);
    EXPECT_EQ(viewer.status, "Configuration Saved");
}

TEST_P(SaveTest, AnEmptyNameIsLeftToTheDatabaseWhichTakesIt) {
    Fill(viewer, 2, 2);
    Save(viewer, "");
    EXPECT_TRUE(Errors().isEmpty());
    EXPECT_TRUE(ConfigurationExists(QString()));
}

TEST_P(SaveTest, NamesAreStoredAndFoundAsTheyAre) {
    const QStringList names{T("it's"),     T("\"quoted\""), T("a;b -- c"),   T("100%"),          T("_"),
                            T("😀 emoji"), T("  blanks  "), T("two\nlines"), QString(2000, u'n')};
    Fill(viewer, 1, 1);
    for (const QString& name : names) {
        viewer.config = name;
        viewer.graphId = name;
        SaveConfiguration(viewer);
    }
    EXPECT_TRUE(Errors().isEmpty());
    const QStringList listed = FillConfigurationList({}).names;
    EXPECT_EQ(listed.size(), names.size());
    for (const QString& name : names) {
        EXPECT_TRUE(listed.contains(name)) << name.toStdString();
        EXPECT_TRUE(ConfigurationExists(name));
        DeleteConfiguration(name);
        EXPECT_FALSE(ConfigurationExists(name));
    }
    EXPECT_EQ(Count("Charts"), 0);
}

TEST_P(SaveTest, AFontStyleThatItsFieldCannotHoldIsError6) {
    Fill(viewer, 2, 2);
    viewer.Model().Title.VtFont.Style = 70000;
    Save(viewer, "Look");
    ASSERT_EQ(Errors().size(), 1);
    EXPECT_TRUE(Errors().front().startsWith(T("Error 6: ")));
}

TEST(SaveFolderTest, AFolderTextWithoutASeparatorNamesAFileBesideTheFolder) {
    const QTemporaryDir folder;
    const QString beside = folder.filePath(T("looks"));
    SetConfigurationFolder(beside);
    EXPECT_EQ(ConfigurationFileName(), beside + T("QmConfig.mdb"));
    ScriptedDesktop desktop;
    const ScopedDesktop scope(desktop);
    TestViewer viewer;
    SaveConfiguration(viewer);
    ASSERT_EQ(desktop.messages.size(), 1);
    EXPECT_TRUE(desktop.messages.front().text.contains(T("looksQmConfig.mdb")));
}

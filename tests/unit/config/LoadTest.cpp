#include "StoreTest.h"

#include "chart/ValueLabelFormat.h"
#include "desktop/CurrentDesktop.h"

using namespace QmChart6;

namespace {

class LoadTest : public StoreTest {
protected:
    [[nodiscard]] Chart& Model() { return viewer.Model(); }
};
INSTANTIATE_TEST_SUITE_P(Engines, LoadTest, testing::Values(Engine::Sqlite, Engine::Postgres), EngineName());

} // namespace

TEST_P(LoadTest, WithoutABindingTheDefaultLookIsAppliedAndTheNameStaysAsItWas) {
    Fill(viewer, 2, 2);
    const Chart before = Model();
    Model().Plot.Axis(AxisId::Y).AxisGrid.MajorPen.Style = PenStyle::Dashed;
    viewer.config = T("other");
    LoadChartConfiguration(viewer, true);
    EXPECT_EQ(Model(), before);
    EXPECT_EQ(viewer.config, "other");
    EXPECT_TRUE(viewer.opened);
    EXPECT_TRUE(Errors().isEmpty());
}

TEST_P(LoadTest, ANameThatIsNotThereGivesTheDefaultLookAndItsOtherRecordsAreNotLookedAt) {
    Fill(viewer, 2, 2);
    const Chart before = Model();
    Model().Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).Brush.FillColor = {9, 9, 9};
    Save(viewer, "Look");
    store.Sql(T("DELETE FROM <ChartConfigurations>"));
    LoadConfiguration(viewer, T("Look"), true);
    Chart expected = before;
    expected.Column = 2;
    EXPECT_EQ(Model(), expected);
}

TEST_P(LoadTest, TheBoundLookBecomesTheViewersConfiguration) {
    Fill(viewer, 2, 2);
    Model().SetChartType(ChartType::Line2D);
    Save(viewer, "Look");
    TestViewer other;
    Fill(other, 2, 2);
    LoadChartConfiguration(other, true);
    EXPECT_EQ(other.config, "Look");
    EXPECT_EQ(other.Model().chartType(), ChartType::Line2D);
    EXPECT_EQ(other.status, "");
}

TEST_P(LoadTest, WithoutTitlesTheTextsOfTheDataStayAndTheRestIsApplied) {
    Fill(viewer, 2, 2);
    Model().Title.Text = T("Stored");
    Model().Title.VtFont.Size = 33;
    Model().Title.TextLayout.HorzAlignment = HorizontalAlignment::Right;
    Model().Title.Location.LocationType = LocationType::BottomLeft;
    Model().Plot.Axis(AxisId::X).AxisTitle.Text = T("Stored X");
    Model().Plot.Axis(AxisId::X).AxisTitle.VtFont.Style = FontBold;
    Model().Plot.Axis(AxisId::X).AxisTitle.Visible = false;
    Model().DataGrid.SetColumnLabel(1, T("Stored column"));
    Save(viewer, "Look");

    Fill(viewer, 2, 2);
    Model().Title.Text = T("Caller's");
    Model().Plot.Axis(AxisId::X).AxisTitle.Text = T("Caller's X");
    LoadConfiguration(viewer, T("Look"), false);
    EXPECT_EQ(Model().Title.Text, "Caller's");
    EXPECT_EQ(Model().Plot.Axis(AxisId::X).AxisTitle.Text, "Caller's X");
    EXPECT_EQ(Model().DataGrid.ColumnLabel(1), "Column 1");
    EXPECT_EQ(Model().Title.VtFont.Size, 33);
    EXPECT_EQ(Model().Title.TextLayout.HorzAlignment, HorizontalAlignment::Right);
    EXPECT_EQ(Model().Title.Location.LocationType, LocationType::BottomLeft);
    EXPECT_EQ(Model().Plot.Axis(AxisId::X).AxisTitle.VtFont.Style, FontBold);
    EXPECT_FALSE(Model().Plot.Axis(AxisId::X).AxisTitle.Visible);

    LoadConfiguration(viewer, T("Look"), true);
    EXPECT_EQ(Model().Title.Text, "Stored");
    EXPECT_EQ(Model().Plot.Axis(AxisId::X).AxisTitle.Text, "Stored X");
    EXPECT_EQ(Model().DataGrid.ColumnLabel(1), "Stored column");
}

TEST_P(LoadTest, SeriesBeyondThoseThatWereSavedKeepTheirLook) {
    Fill(viewer, 2, 2);
    Model().Plot.SeriesCollection(2).DataPoints.Item(DataPoints::All).Brush.FillColor = {1, 2, 3};
    Save(viewer, "Look");
    Fill(viewer, 2, 4);
    Model().Plot.SeriesCollection(3).DataPoints.Item(DataPoints::All).Brush.FillColor = {7, 8, 9};
    LoadConfiguration(viewer, T("Look"), true);
    EXPECT_EQ(Model().Plot.SeriesCollection(2).DataPoints.Item(DataPoints::All).Brush.FillColor,
              (Colour{1, 2, 3}));
    EXPECT_EQ(Model().Plot.SeriesCollection(3).DataPoints.Item(DataPoints::All).Brush.FillColor,
              (Colour{7, 8, 9}));
    EXPECT_EQ(Model().DataGrid.ColumnLabel(4), "Column 4");
}

TEST_P(LoadTest, ALookWithMoreSeriesAndColumnsThanTheChartIsReadAsFarAsTheChartGoes) {
    Fill(viewer, 2, 5);
    Save(viewer, "Look");
    store.Sql(T("UPDATE <SeriesConfigurations> SET \"SeriesType\" = 99 WHERE \"SeriesId\" > 2"));
    Fill(viewer, 2, 2);
    LoadConfiguration(viewer, T("Look"), true);
    EXPECT_TRUE(Errors().isEmpty());
    EXPECT_EQ(Model().Plot.SeriesCollection.Count(), 2);
}

TEST_P(LoadTest, AMaximizedLookMaximizesAndANormalOneDoesNotRestore) {
    Fill(viewer, 2, 2);
    const LookState normal = viewer.look;
    viewer.look.maximized = true;
    Save(viewer, "Large");
    viewer.look.maximized = false;
    Save(viewer, "Normal");
    const auto load = [&](const char* name) {
        viewer.look.height = viewer.look.width = 3000;
        viewer.windowLog.clear();
        LoadConfiguration(viewer, T(name), false);
        EXPECT_EQ(viewer.look.height, normal.height);
        EXPECT_EQ(viewer.look.width, normal.width);
        return viewer.windowLog;
    };
    EXPECT_EQ(load("Large"), QStringList({T("height"), T("width"), T("maximized")}));
    EXPECT_EQ(load("Normal"), QStringList({T("height"), T("width")}));
    EXPECT_TRUE(viewer.look.maximized);
}

TEST_P(LoadTest, LabelFormatsAreThoseOfTheProcess) {
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    const auto label = [this]() -> DataPointLabel& {
        return Model().Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).DataPointLabel;
    };
    label().PercentFormat = T("0");
    label().ValueFormat = T("0.000");
    LoadConfiguration(viewer, T("Look"), false);
    EXPECT_EQ(label().PercentFormat, "0.0%");
    EXPECT_EQ(label().ValueFormat, ValueLabelFormat());
}

TEST_P(LoadTest, AnErrorStopsItAndWhatWasAppliedStays) {
    Fill(viewer, 2, 2);
    Model().SetChartType(ChartType::Area2D);
    Model().Plot.Projection = Projection::Perspective;
    Save(viewer, "Look");
    store.Sql(T("UPDATE <ChartConfigurations> SET \"Projection\" = 77"));
    Fill(viewer, 2, 2);
    Model().SetChartType(ChartType::Bar2D);
    Model().Plot.Axis(AxisId::Y).AxisScale.Hide = true;
    LoadConfiguration(viewer, T("Look"), true);
    ASSERT_EQ(Errors().size(), 1);
    EXPECT_TRUE(Errors().front().startsWith(T("Error 380: ")));
    EXPECT_EQ(Model().chartType(), ChartType::Area2D);
    EXPECT_TRUE(Model().Plot.Axis(AxisId::Y).AxisScale.Hide);
}

TEST_P(LoadTest, AMissingFieldStopsItAtThatField) {
    Fill(viewer, 2, 2);
    Model().SetChartType(ChartType::Area2D);
    Save(viewer, "Look");
    store.Sql(T("ALTER TABLE <ChartConfigurations> DROP COLUMN \"Legend\""));
    Model().SetChartType(ChartType::Bar2D);
    LoadConfiguration(viewer, T("Look"), true);
    ASSERT_EQ(Errors().size(), 1);
    EXPECT_TRUE(Errors().front().startsWith(T("Error 3265: ")));
    EXPECT_EQ(Model().chartType(), ChartType::Area2D);
}

TEST_P(LoadTest, AValueOutsideAColoursRangeIsError380) {
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    store.Sql(T("UPDATE <ChartConfigurations> SET \"BackColorGreen\" = 256"));
    LoadConfiguration(viewer, T("Look"), true);
    ASSERT_EQ(Errors().size(), 1);
    EXPECT_TRUE(Errors().front().startsWith(T("Error 380: ")));
}

TEST_P(LoadTest, AnEmptyFieldIsError94) {
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    store.Sql(T("UPDATE <ChartConfigurations> SET \"TitleFontName\" = NULL"));
    LoadConfiguration(viewer, T("Look"), true);
    ASSERT_EQ(Errors().size(), 1);
    EXPECT_TRUE(Errors().front().startsWith(T("Error 94: ")));
}

TEST(LoadKindsTest, ANumberThatAnEmbeddedFieldCannotHoldIsError6AndAWordError13) {
    TestStore store(Engine::Sqlite, ConfigurationSchema());
    SetConfigurationFolder(store.Folder());
    ScriptedDesktop desktop;
    const ScopedDesktop scope(desktop);
    TestViewer viewer;
    viewer.config = T("Look");
    SaveConfiguration(viewer);
    store.Sql(T("UPDATE <ChartConfigurations> SET \"Lines\" = 40000"));
    LoadConfiguration(viewer, T("Look"), false);
    store.Sql(T("UPDATE <ChartConfigurations> SET \"Lines\" = 'many'"));
    LoadConfiguration(viewer, T("Look"), false);
    ASSERT_EQ(desktop.messages.size(), 2);
    EXPECT_TRUE(desktop.messages[0].text.startsWith(T("Error 6: ")));
    EXPECT_TRUE(desktop.messages[1].text.startsWith(T("Error 13: ")));
}

TEST_P(LoadTest, AColourIsGivenWholeOrNotAtAll) {
    Fill(viewer, 2, 2);
    Model().Backdrop.Fill.Brush.FillColor = {10, 20, 30};
    Model().Title.VtFont.VtColor = {10, 20, 30};
    Save(viewer, "Look");
    for (const auto& [field, colour] : {std::pair("BackColorGreen", &Model().Backdrop.Fill.Brush.FillColor),
                                        std::pair("TitleFontColorBlue", &Model().Title.VtFont.VtColor)}) {
        const QString set = T("UPDATE <ChartConfigurations> SET \"%1\" = %2").arg(T(field));
        store.Sql(set.arg(300));
        *colour = {1, 2, 3};
        desktop.messages.clear();
        LoadConfiguration(viewer, T("Look"), true);
        ASSERT_EQ(Errors().size(), 1) << field;
        EXPECT_TRUE(Errors().front().startsWith(T("Error 380: "))) << field;
        EXPECT_EQ(*colour, (Colour{1, 2, 3})) << field;
        store.Sql(set.arg(20));
    }
}

TEST_P(LoadTest, ALabelHasItsFormatsBeforeItsFont) {
    Fill(viewer, 2, 2);
    Save(viewer, "Look");
    store.Sql(T("UPDATE <SeriesConfigurations> SET \"SeriesLabelFontColorRed\" = 300"));
    DataPointLabel& label = Model().Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).DataPointLabel;
    label.PercentFormat = T("0%");
    label.ValueFormat = T("0.000");
    LoadConfiguration(viewer, T("Look"), true);
    ASSERT_EQ(Errors().size(), 1);
    const DataPointLabel& loaded =
        Model().Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).DataPointLabel;
    EXPECT_EQ(loaded.PercentFormat, "0.0%");
    EXPECT_EQ(loaded.ValueFormat, ValueLabelFormat());
}

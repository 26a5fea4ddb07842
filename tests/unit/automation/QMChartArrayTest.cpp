#include "AutomationTest.h"

#include <thread>

using namespace QmChart6;

using QMChartArrayTest = AutomationTest;

TEST_F(QMChartArrayTest, ConstantsHaveTheirValuesAndReadingThemHasNoSideEffect) {
    SetLanguageCode(3);
    EXPECT_EQ(charts.QmChNo(), 0);
    EXPECT_EQ(charts.QmChNoTitles(), 1);
    EXPECT_EQ(charts.QmChYes(), 2);
    EXPECT_EQ(charts.QmChEnglish(), 0);
    EXPECT_EQ(charts.QmChPortuguese(), 1);
    EXPECT_EQ(charts.QmChSpanish(), 2);
    EXPECT_EQ(charts.QmChItalian(), 3);
    EXPECT_EQ(LanguageCode(), 3);
}

TEST_F(QMChartArrayTest, MakingAGraphWithoutALanguageSetsTheLanguageBackToEnglish) {
    Make(QStringLiteral("a"), std::int16_t{3});
    EXPECT_EQ(LanguageCode(), 3);
    charts.QmMakeGraph(QStringLiteral("a"), 3, 2, data, rowLabels, columnLabels, title, rowTitle, columnTitle,
                       valueTitle);
    EXPECT_EQ(LanguageCode(), 0);
}

TEST_F(QMChartArrayTest, AConfigurationFolderIsPutRightBeforeTheFilesName) {
    charts.SetQmChartConfigPath(QStringLiteral("/data/looks"));
    EXPECT_EQ(ConfigurationFileName(), "/data/looksQmConfig.mdb");
    charts.SetQmChartConfigPath(QStringLiteral("/data/looks/"));
    EXPECT_EQ(ConfigurationFileName(), "/data/looks/QmConfig.mdb");
}

TEST_F(QMChartArrayTest, MkGrGivesTheSameChartWithAnyConfigId) {
    charts.QmMkGr(QStringLiteral("a"), QString(), 3, 2, data, rowLabels, columnLabels, title, valueTitle,
                  rowTitle);
    charts.QmMkGr(QStringLiteral("b"), QStringLiteral("Quarterly"), 3, 2, data, rowLabels, columnLabels,
                  title, valueTitle, rowTitle);
    EXPECT_EQ(ChartOf("a"), ChartOf("b"));
    EXPECT_EQ(Viewer(QStringLiteral("b"))->QmConfig(), "");
}

TEST_F(QMChartArrayTest, MkGrTakesTheValueTitleBeforeTheRowTitleAndHasNoColumnTitle) {
    charts.QmMkGr(QStringLiteral("a"), QString(), 3, 2, data, rowLabels, columnLabels, title, valueTitle,
                  rowTitle);
    const Plot& plot = ChartOf("a").Plot;
    EXPECT_EQ(plot.Axis(AxisId::X).AxisTitle.Text, rowTitle);
    EXPECT_EQ(plot.Axis(AxisId::Y).AxisTitle.Text, valueTitle);
    EXPECT_EQ(plot.Axis(AxisId::Z).AxisTitle.Text, "");
}

TEST_F(QMChartArrayTest, MkGrGivesASpanishCaptionAndTheDefaultLook) {
    charts.QmMkGr(QStringLiteral("a"), QStringLiteral("any"), 3, 2, data, rowLabels, columnLabels, title,
                  valueTitle, rowTitle);
    EXPECT_EQ(LanguageCode(), 2);
    EXPECT_EQ(Viewer(QStringLiteral("a"))->windowTitle(), "Chart Viewer");
    const QString caption =
        Viewer(QStringLiteral("a"))->findChild<QAction*>(QStringLiteral("optControlBar"))->text();
    EXPECT_EQ(QString(caption).remove(QLatin1Char('&')), LocalText(TextKey::ControlBar));
    EXPECT_EQ(ChartOf("a").Plot.Axis(AxisId::Y).AxisGrid.MajorPen.Style, PenStyle::Dotted);
    EXPECT_TRUE(desktop.messages.isEmpty());
}

TEST_F(QMChartArrayTest, InstancesShareTheirViewers) {
    Make(QStringLiteral("a"));
    QMChartArray other;
    other.QmKillGraph(QStringLiteral("a"));
    EXPECT_EQ(Viewer(QStringLiteral("a")), nullptr);
}

TEST_F(QMChartArrayTest, ALanguageIsANumberOf16Bits) {
    Make(QStringLiteral("a"), Variant(QStringLiteral("2")));
    EXPECT_EQ(LanguageCode(), 2);
    EXPECT_RAISES(13, (Make(QStringLiteral("a"), Variant(QStringLiteral("Spanish"))), 0));
    EXPECT_EQ(LanguageCode(), 2);
    EXPECT_RAISES(6, (Make(QStringLiteral("a"), Variant(70000)), 0));
    EXPECT_RAISES(94, (Make(QStringLiteral("a"), Variant(Null{})), 0));
}

TEST_F(QMChartArrayTest, ALanguageWithoutTextsRaises326) {
    EXPECT_RAISES(326, (Make(QStringLiteral("a"), std::int16_t{4}), 0));
    Make(QStringLiteral("a"));
    EXPECT_RAISES(326, (Make(QStringLiteral("a"), std::int16_t{4}), 0));
    EXPECT_NE(Viewer(QStringLiteral("a")), nullptr);
}

TEST_F(QMChartArrayTest, ACallFromAnotherThreadRaises5) {
    Make(QStringLiteral("a"));
    std::thread([this] {
        EXPECT_RAISES(5, (Make(QStringLiteral("a")), 0));
        EXPECT_RAISES(5, (charts.QmKillGraph(QStringLiteral("a")), 0));
        EXPECT_RAISES(5, (charts.SetQmChartConfigPath(QString()), 0));
        QString name = QStringLiteral("chart.bmp");
        EXPECT_RAISES(5, (charts.QmSaveGraph(QStringLiteral("a"), 3, 2, data, rowLabels, columnLabels, title,
                                             rowTitle, columnTitle, valueTitle, 0, name),
                          0));
        EXPECT_RAISES(5, (charts.QmPrintGraph(QStringLiteral("a"), 3, 2, data, rowLabels, columnLabels, title,
                                              rowTitle, columnTitle, valueTitle),
                          0));
    }).join();
    EXPECT_NE(Viewer(QStringLiteral("a")), nullptr);
}

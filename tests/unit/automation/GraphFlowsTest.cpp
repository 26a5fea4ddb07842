#include "AutomationTest.h"

#include "qmchart6/Host.h"

#include "chart/ValueLabelFormat.h"
#include "config/ConfigurationSchema.h"
#include "config/ConfigurationStore.h"
#include "support/TestStore.h"
#include "viewer/ViewerStatusBar.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include <limits>

using namespace QmChart6;

namespace {

class GraphFlowsTest : public AutomationTest {
protected:
    void Print(const QString& id, std::uint8_t useConfig = 0) {
        charts.QmPrintGraph(id, 3, 2, data, rowLabels, columnLabels, title, rowTitle, columnTitle, valueTitle,
                            useConfig);
    }
    void Save(const QString& id, QString& name, std::uint8_t useConfig = 0) {
        charts.QmSaveGraph(id, 3, 2, data, rowLabels, columnLabels, title, rowTitle, columnTitle, valueTitle,
                           useConfig, name);
    }
    void UsePrinter() {
        desktop.printer = desktop.chosenPrinter = QStringLiteral("paper");
        desktop.printers = QStringList{QStringLiteral("paper"), QStringLiteral("lab")};
        desktop.printerFile = InFolder("page.pdf");
    }
    [[nodiscard]] QString InFolder(const char* name) const { return folder.filePath(QLatin1String(name)); }

    /// Stores a line chart titled "Stored" and binds it to a graph that is closed again.
    void StoreLook(const QString& id) {
        store = std::make_unique<TestStore>(Engine::Sqlite, ConfigurationSchema());
        charts.SetQmChartConfigPath(store->Folder());
        Make(id);
        Viewer(id)->ChartImage().Model().SetChartType(ChartType::Line2D);
        Viewer(id)->ChartImage().Model().Title.Text = QStringLiteral("Stored");
        Viewer(id)->SetQmConfig(QStringLiteral("Look"));
        SaveConfiguration(*Viewer(id));
        charts.QmKillGraph(id);
    }

    QTemporaryDir folder;
    std::unique_ptr<TestStore> store;
};

} // namespace

TEST_F(GraphFlowsTest, IdsThatDifferInCaseAndBlanksAddressTheSameWindow) {
    Make(QStringLiteral("Sales"));
    const GraphForm* viewer = Viewer(QStringLiteral("SALES"));
    const int places = Viewers().UpperBound();
    Make(QStringLiteral("  sALES "));
    EXPECT_EQ(Viewer(QStringLiteral("sales")), viewer);
    EXPECT_EQ(Viewers().UpperBound(), places);
    EXPECT_EQ(viewer->GraphId(), "SALES");
}

TEST_F(GraphFlowsTest, MakingAGraphShowsItWithTitlesCaptionAndDefaultLook) {
    Make(QStringLiteral("a"), std::int16_t{1});
    const GraphForm* viewer = Viewer(QStringLiteral("a"));
    EXPECT_TRUE(viewer->isVisible());
    EXPECT_EQ(viewer->windowTitle(), QStringLiteral("Viewer do Gráfico"));
    const Chart& chart = ChartOf("a");
    EXPECT_EQ(chart.Title.Text, "Title");
    EXPECT_EQ(chart.Plot.Axis(AxisId::X).AxisTitle.Text, "Rows");
    EXPECT_EQ(chart.Plot.Axis(AxisId::Y).AxisTitle.Text, "Values");
    EXPECT_EQ(chart.Plot.Axis(AxisId::SecondaryY).AxisTitle.Text, "Values");
    EXPECT_EQ(chart.Plot.Axis(AxisId::Z).AxisTitle.Text, "Columns");
    EXPECT_TRUE(chart.ShowLegend);
    EXPECT_EQ(chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).Brush.FillColor,
              (Colour{200, 0, 0}));
    EXPECT_EQ(chart.DataGrid.Value(3, 2), 32);
    EXPECT_TRUE(viewer->findChild<ChartControl*>()->Repaint());
}

TEST_F(GraphFlowsTest, WhatOfAChartCannotBeShownIsToldInItsStatusInTheLanguageOfTheCall) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const auto told = [&](const std::vector<double>& values, std::int16_t language) {
        charts.QmMakeGraph(QStringLiteral("a"), 1, 1, Array<double>::Table(1, 1, values, 1, 1), rowLabels,
                           columnLabels, title, rowTitle, columnTitle, valueTitle, language);
        const QString text = Viewer(QStringLiteral("a"))
                                 ->findChild<ViewerStatusBar*>(QStringLiteral("sbGraph"))
                                 ->Panel(4)
                                 .Text();
        charts.QmKillGraph(QStringLiteral("a"));
        return text;
    };
    EXPECT_EQ(told({5}, 0), "");
    EXPECT_EQ(told({none}, 0), "There is no value to show");
    EXPECT_EQ(told({none}, 2), QStringLiteral("No hay valor que mostrar"));
}

TEST_F(GraphFlowsTest, ALegendStaysOnWhenAReusedViewerGetsOneSeries) {
    Make(QStringLiteral("a"));
    charts.QmMakeGraph(QStringLiteral("a"), 3, 1, Numbers(3, 1), rowLabels, columnLabels, title, rowTitle,
                       columnTitle, valueTitle);
    EXPECT_EQ(ChartOf("a").ColumnCount(), 1);
    EXPECT_TRUE(ChartOf("a").ShowLegend);
}

TEST_F(GraphFlowsTest, MakingAGraphForAMinimizedViewerRestoresItToNormalSize) {
    Make(QStringLiteral("a"));
    Viewer(QStringLiteral("a"))->SetWindowState(1);
    Make(QStringLiteral("a"));
    EXPECT_EQ(Viewer(QStringLiteral("a"))->WindowState(), 0);
    EXPECT_TRUE(Viewer(QStringLiteral("a"))->isVisible());
}

TEST_F(GraphFlowsTest, AMaximizedViewerStaysMaximized) {
    Make(QStringLiteral("a"));
    Viewer(QStringLiteral("a"))->SetWindowState(2);
    Make(QStringLiteral("a"));
    EXPECT_EQ(Viewer(QStringLiteral("a"))->WindowState(), 2);
}

TEST_F(GraphFlowsTest, AStoredLookIsLoadedWithItsTitlesForTheExactValue2Only) {
    StoreLook(QStringLiteral("a"));
    for (const int useConfig : {1, 2, 3, 255}) {
        Make(QStringLiteral("a"), std::int16_t{0}, static_cast<std::uint8_t>(useConfig));
        const Chart& chart = ChartOf("a");
        EXPECT_EQ(chart.Title.Text, useConfig == 2 ? "Stored" : "Title") << useConfig;
        EXPECT_EQ(chart.chartType(), ChartType::Line2D) << useConfig;
        charts.QmKillGraph(QStringLiteral("a"));
    }
    Make(QStringLiteral("a"));
    EXPECT_EQ(ChartOf("a").chartType(), ChartType::Bar2D);
}

TEST_F(GraphFlowsTest, WithoutADatabaseAMessageTellsSoAndTheChartIsShown) {
    SetConfigurationFolder(folder.path() + u'/');
    Make(QStringLiteral("a"), std::int16_t{0}, 2);
    ASSERT_EQ(desktop.messages.size(), 1);
    EXPECT_TRUE(desktop.messages.front().text.startsWith(QStringLiteral("Error 3024: ")));
    EXPECT_TRUE(Viewer(QStringLiteral("a"))->isVisible());
    EXPECT_FALSE(QFile::exists(InFolder("QmConfig.mdb")));
}

TEST_F(GraphFlowsTest, TheValueLabelFormatFollowsTheData) {
    Make(QStringLiteral("a"));
    EXPECT_EQ(ValueLabelFormat(), "0");
    charts.QmMakeGraph(QStringLiteral("a"), 1, 1, Array<double>::Table(1, 1, {2.5}, 1, 1), rowLabels,
                       columnLabels, title, rowTitle, columnTitle, valueTitle);
    EXPECT_EQ(ValueLabelFormat(), "0.00");
    EXPECT_EQ(ChartOf("a").Plot.Axis(AxisId::Y).Labels.Item(1).Format, "0.00");
}

TEST_F(GraphFlowsTest, FormatsThatFollowTheDataAreEmptyInEveryLook) {
    StoreLook(QStringLiteral("a"));
    SetFormatsFollowData(true);
    const Variant halves = Array<double>::Table(3, 2, {5.91, 1, 2, 3, 4, 5}, 1, 1);
    for (const int useConfig : {0, 1, 2}) {
        charts.QmMakeGraph(QStringLiteral("a"), 3, 2, halves, rowLabels, columnLabels, title, rowTitle,
                           columnTitle, valueTitle, std::int16_t{0}, static_cast<std::uint8_t>(useConfig));
        const Chart& chart = ChartOf("a");
        for (const AxisId axis : {AxisId::Y, AxisId::SecondaryY})
            EXPECT_EQ(chart.Plot.Axis(axis).Labels.Item(1).Format, "") << useConfig;
        const DataPointLabel& label =
            chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).DataPointLabel;
        EXPECT_EQ(label.ValueFormat, "") << useConfig;
        EXPECT_EQ(label.PercentFormat, useConfig == 0 ? "0%" : "0.0%") << useConfig;
    }
}

TEST_F(GraphFlowsTest, ASavedChartWithALookHasItsTicksInFullWhereFormatsFollowTheData) {
    StoreLook(QStringLiteral("a"));
    const Variant small = Array<double>::Table(3, 2, {0.1, 0.2, 0.3, 0.4, 0.5, 0.6}, 1, 1);
    const auto saved = [&](const char* file) {
        QString name = InFolder(file);
        charts.QmSaveGraph(QStringLiteral("a"), 3, 2, small, rowLabels, columnLabels, title, rowTitle,
                           columnTitle, valueTitle, 1, name);
        QFile svg(name);
        return svg.open(QIODevice::ReadOnly) ? svg.readAll() : QByteArray();
    };
    EXPECT_FALSE(saved("rounded.svg").contains(">0.2<"));
    SetFormatsFollowData(true);
    EXPECT_TRUE(saved("full.svg").contains(">0.2<"));
}

TEST_F(GraphFlowsTest, AZeroBasedTableIsFilledFromItsFirstElementAndThenRaises9) {
    EXPECT_RAISES(9, (charts.QmMakeGraph(QStringLiteral("a"), 3, 2, Numbers(3, 2, 0), rowLabels, columnLabels,
                                         title, rowTitle, columnTitle, valueTitle),
                      0));
    EXPECT_EQ(ChartOf("a").DataGrid.Value(3, 2), 32);
    EXPECT_EQ(Viewer(QStringLiteral("a"))->windowTitle(), "Chart Viewer");
}

TEST_F(GraphFlowsTest, AnErrorLeavesTheViewerOpenAndUsable) {
    EXPECT_RAISES(9, (charts.QmMakeGraph(QStringLiteral("a"), 4, 2, data, rowLabels, columnLabels, title,
                                         rowTitle, columnTitle, valueTitle),
                      0));
    ASSERT_NE(Viewer(QStringLiteral("a")), nullptr);
    EXPECT_EQ(ChartOf("a").DataGrid.Value(3, 2), 32);
    EXPECT_TRUE(Viewer(QStringLiteral("a"))->ChartImage().Repaint());
    Make(QStringLiteral("a"));
    EXPECT_TRUE(Viewer(QStringLiteral("a"))->isVisible());
}

TEST_F(GraphFlowsTest, NoRowsOrColumnsGiveAnEmptyChartAndNegativeOnesRaise380) {
    charts.QmMakeGraph(QStringLiteral("a"), 0, 0, data, rowLabels, columnLabels, title, rowTitle, columnTitle,
                       valueTitle);
    EXPECT_TRUE(Viewer(QStringLiteral("a"))->isVisible());
    EXPECT_FALSE(Viewer(QStringLiteral("a"))->grab().isNull());
    EXPECT_RAISES(380, (charts.QmMakeGraph(QStringLiteral("a"), -1, 2, data, rowLabels, columnLabels, title,
                                           rowTitle, columnTitle, valueTitle),
                        0));
}

TEST_F(GraphFlowsTest, SavingWithAFileNameAsksNothingOverwritesAndClosesTheViewer) {
    QString name = InFolder("chart.bmp");
    QFile old(name);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    Make(QStringLiteral("a"));
    Save(QStringLiteral(" A "), name);
    EXPECT_TRUE(desktop.pickers.isEmpty());
    EXPECT_EQ(QImage(name).width(), 760);
    EXPECT_EQ(Viewer(QStringLiteral("a")), nullptr);
}

TEST_F(GraphFlowsTest, SavingKeepsTheLanguageAndTheValueLabelFormatAndAppliesNoDefaultLook) {
    Make(QStringLiteral("other"), std::int16_t{3});
    SetLanguageCode(3);
    QString name;
    desktop.files = {InFolder("chart.bmp")};
    Save(QStringLiteral("a"), name);
    EXPECT_EQ(LanguageCode(), 3);
    EXPECT_EQ(name, InFolder("chart.bmp"));
    EXPECT_EQ(ValueLabelFormat(), "0");
    EXPECT_EQ(Viewer(QStringLiteral("a")), nullptr);
}

TEST_F(GraphFlowsTest, ACancelledSaveClosesTheViewerToo) {
    QString name;
    Save(QStringLiteral("a"), name);
    EXPECT_EQ(desktop.pickers.size(), 1);
    EXPECT_EQ(name, "");
    EXPECT_EQ(Viewer(QStringLiteral("a")), nullptr);
}

TEST_F(GraphFlowsTest, AFailedSaveKeepsTheViewerWithItsCaptionAndLook) {
    QString name = InFolder("missing/chart.bmp");
    EXPECT_RAISES(76, (Save(QStringLiteral(" sales "), name), 0));
    const GraphForm* viewer = Viewer(QStringLiteral("sales"));
    ASSERT_NE(viewer, nullptr);
    EXPECT_FALSE(viewer->isVisible());
    EXPECT_EQ(viewer->windowTitle(), "SALES - Graph Viewer");
    EXPECT_NE(ChartOf("sales").Plot.Axis(AxisId::Y).AxisGrid.MajorPen.Style, PenStyle::Dotted);
    Make(QStringLiteral("sales"));
    EXPECT_TRUE(viewer->isVisible());
}

TEST_F(GraphFlowsTest, SavingWithAStoredLookGivesAnotherPicture) {
    StoreLook(QStringLiteral("a"));
    QString plain = InFolder("plain.bmp");
    QString looked = InFolder("looked.bmp");
    Save(QStringLiteral("a"), plain, 0);
    Save(QStringLiteral("a"), looked, 1);
    EXPECT_TRUE(desktop.messages.isEmpty());
    EXPECT_NE(QImage(plain), QImage(looked));
}

TEST_F(GraphFlowsTest, PrintingClosesTheViewerThatWasOpen) {
    UsePrinter();
    Make(QStringLiteral("a"));
    Print(QStringLiteral("A"));
    EXPECT_GT(QFile(desktop.printerFile).size(), 0);
    EXPECT_EQ(Viewer(QStringLiteral("a")), nullptr);
}

TEST_F(GraphFlowsTest, ACancelledPrintClosesTheViewerAllTheSame) {
    UsePrinter();
    desktop.chosenPrinter.reset();
    Print(QStringLiteral("a"));
    EXPECT_EQ(desktop.printDialogs, 1);
    EXPECT_FALSE(QFile::exists(desktop.printerFile));
    EXPECT_EQ(Viewer(QStringLiteral("a")), nullptr);
}

TEST_F(GraphFlowsTest, OnAPrinterThatTheHostSetNobodyIsAsked) {
    UsePrinter();
    SetPrinter(QStringLiteral("lab"));
    Print(QStringLiteral("a"));
    EXPECT_EQ(desktop.printDialogs, 0);
    EXPECT_EQ(desktop.openedPrinters, QStringList("lab"));
    EXPECT_GT(QFile(desktop.printerFile).size(), 0);
    SetPrinter(QString());
    Print(QStringLiteral("a"));
    EXPECT_EQ(desktop.printDialogs, 1);
}

TEST_F(GraphFlowsTest, AHostSetsPrintersThatThereAre) {
    EXPECT_TRUE(PrinterNames().isEmpty());
    EXPECT_EQ(DefaultPrinterName(), "");
    EXPECT_RAISES(482, (SetPrinter(QStringLiteral("lab")), 0));
    UsePrinter();
    EXPECT_EQ(PrinterNames(), QStringList({"paper", "lab"}));
    EXPECT_EQ(DefaultPrinterName(), "paper");
    SetPrinter(QStringLiteral("lab"));
    EXPECT_RAISES(482, (SetPrinter(QStringLiteral("cellar")), 0));
    Print(QStringLiteral("a"));
    EXPECT_EQ(desktop.openedPrinters, QStringList("lab"));
    SetPrinter(QString());
}

TEST_F(GraphFlowsTest, PrintingWithoutAPrinterRaises482AndKeepsTheViewer) {
    desktop.chosenPrinter = QString();
    EXPECT_RAISES(482, (Print(QStringLiteral("a")), 0));
    EXPECT_NE(Viewer(QStringLiteral("a")), nullptr);
    EXPECT_FALSE(AnyViewerShown());
}

TEST_F(GraphFlowsTest, TheCurrentDirectoryStaysWhereItWas) {
    const QString before = QDir::currentPath();
    QString name = InFolder("chart.bmp");
    Save(QStringLiteral("a"), name);
    EXPECT_EQ(QDir::currentPath(), before);
}

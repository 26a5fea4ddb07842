#include "viewer/PrintChart.h"

#include "chartcontrol/widget/ChartControl.h"
#include "support/Raises.h"
#include "support/ScriptedDesktop.h"
#include "viewer/GraphForm.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QLabel>
#include <QMimeData>
#include <QPageLayout>
#include <QPrinter>
#include <QTemporaryDir>

using namespace QmChart6;

namespace {

QByteArray BytesOf(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(PrintChart, Raises482WhereThereIsNoPrinter) {
    ScriptedDesktop desktop;
    desktop.chosenPrinter = QString();
    const ScopedDesktop scope(desktop);
    GraphForm form;
    EXPECT_RAISES(482, (PrintChart(form.ChartImage()), 0));
}

TEST(PrintChart, Raises482ForAPrinterThatIsNotThere) {
    ScriptedDesktop desktop;
    desktop.printer = QStringLiteral("no such printer");
    desktop.chosenPrinter = QStringLiteral("no such printer");
    const ScopedDesktop scope(desktop);
    GraphForm form;
    EXPECT_RAISES(482, (PrintChart(form.ChartImage()), 0));
}

namespace {

/// Two printers that print into a file, and a viewer with something on every part.
class PrintChartTest : public testing::Test {
protected:
    PrintChartTest() {
        desktop.printers = {QStringLiteral("office"), QStringLiteral("lab")};
        desktop.printer = QStringLiteral("office");
        desktop.printerFile = folder.filePath(QStringLiteral("page.pdf"));
        desktop.chosenPrinter = QStringLiteral("office");
        Chart& chart = form.ChartImage().Model();
        chart.SetGridSize(3, 2);
        chart.Title.Text = QStringLiteral("Title");
        chart.Title.Location.LocationType = LocationType::Bottom;
        chart.Legend.Location.LocationType = LocationType::Left;
        chart.Backdrop.Frame.Style = FrameStyle::ThickOuter;
        chart.Backdrop.Fill.Brush.FillColor = {200, 220, 255};
        desktop.SetClipboard(TextOnClipboard());
    }
    static std::unique_ptr<QMimeData> TextOnClipboard() {
        auto content = std::make_unique<QMimeData>();
        content->setText(QStringLiteral("before"));
        return content;
    }
    [[nodiscard]] QString ClipboardText() const { return desktop.Clipboard()->text(); }
    [[nodiscard]] bool HasPage() const { return BytesOf(desktop.printerFile).startsWith("%PDF"); }

    const QTemporaryDir folder;
    ScriptedDesktop desktop;
    ScopedDesktop scope{desktop};
    GraphForm form;
};

} // namespace

TEST_F(PrintChartTest, TheChartIsTheSameAndTheClipboardEmptyAfterwards) {
    const Chart before = form.ChartImage().Model();
    PrintChart(form.ChartImage());
    EXPECT_TRUE(HasPage());
    EXPECT_EQ(desktop.printDialogs, 1);
    EXPECT_EQ(form.ChartImage().Model(), before);
    EXPECT_TRUE(desktop.Clipboard() == nullptr || desktop.Clipboard()->formats().isEmpty());
    EXPECT_FALSE(form.Modified());
}

TEST_F(PrintChartTest, AWideChartProposesAWidePage) {
    QList<QPageLayout::Orientation> proposed;
    desktop.settle = [&](QPrinter& settings) { proposed.append(settings.pageLayout().orientation()); };
    form.ChartImage().resize(800, 400);
    PrintChart(form.ChartImage());
    form.ChartImage().resize(400, 800);
    PrintChart(form.ChartImage());
    EXPECT_EQ(proposed, QList<QPageLayout::Orientation>({QPageLayout::Landscape, QPageLayout::Portrait}));
}

TEST_F(PrintChartTest, TheDocumentBearsTheChartsTitle) {
    form.ChartImage().Model().Title.Text = QStringLiteral("Sales by year");
    PrintChart(form.ChartImage());
    QByteArray title("/Title ");
    EXPECT_TRUE(BytesOf(desktop.printerFile).contains(title));
    // Titles of documents are UTF-16 there.
    QByteArray letters;
    for (const char letter : QByteArray("Sales by year")) letters += QByteArray(1, '\0') + letter;
    EXPECT_TRUE(BytesOf(desktop.printerFile).contains(letters));
}

TEST_F(PrintChartTest, ThePageIsSeenBeforeItIsPrinted) {
    form.ChartImage().resize(800, 400);
    const Chart before = form.ChartImage().Model();
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    desktop.settle = [&](QPrinter& settings) { orientation = settings.pageLayout().orientation(); };
    form.findChild<QAction*>(QStringLiteral("optPreview"))->trigger();
    EXPECT_EQ(desktop.previews, QStringList("Print Preview"));
    EXPECT_TRUE(HasPage());
    EXPECT_EQ(orientation, QPageLayout::Landscape);
    EXPECT_EQ(desktop.printDialogs, 0);
    EXPECT_EQ(form.ChartImage().Model(), before);
}

TEST_F(PrintChartTest, ACancelledDialogPrintsNothingAndChangesNothing) {
    desktop.chosenPrinter.reset();
    const Chart before = form.ChartImage().Model();
    PrintChart(form.ChartImage());
    EXPECT_FALSE(HasPage());
    EXPECT_EQ(form.ChartImage().Model(), before);
    EXPECT_EQ(ClipboardText(), "before");
}

TEST_F(PrintChartTest, AFailingPrinterRaises482AndLeavesTheChartAsItWas) {
    desktop.printerFile = QStringLiteral("/nowhere/at/all/page.pdf");
    const Chart before = form.ChartImage().Model();
    EXPECT_RAISES(482, (PrintChart(form.ChartImage()), 0));
    EXPECT_EQ(form.ChartImage().Model(), before);
    EXPECT_EQ(form.findChild<QWidget*>(QStringLiteral("GraphPrinting")), nullptr);
}

TEST_F(PrintChartTest, AFileHasNoQueueThatCouldHaveAProblem) {
    desktop.printerProblem = desktop.pageProblem = QStringLiteral("the printer is stopped");
    PrintChart(form.ChartImage());
    EXPECT_TRUE(HasPage());
}

TEST_F(PrintChartTest, TheChosenPrinterIsTheOneFromThenOn) {
    desktop.chosenPrinter = QStringLiteral("lab");
    PrintChart(form.ChartImage());
    EXPECT_EQ(desktop.openedPrinters, QStringList({"office", "lab"}));
    desktop.openedPrinters.clear();
    PrintChart(form.ChartImage());
    EXPECT_EQ(desktop.openedPrinters.front(), "lab");
    desktop.chosenPrinter = QStringLiteral("office");
    PrintChart(form.ChartImage());
}

TEST_F(PrintChartTest, ANameThatNoPrinterBearsLeavesThePrinterThatThereIs) {
    desktop.chosenPrinter = QStringLiteral("gone");
    PrintChart(form.ChartImage());
    EXPECT_EQ(desktop.openedPrinters.back(), "office");
    EXPECT_TRUE(HasPage());
}

TEST_F(PrintChartTest, AChosenPrinterThatWasTakenAwayGivesWayToTheDefault) {
    desktop.chosenPrinter = QStringLiteral("lab");
    PrintChart(form.ChartImage());
    desktop.printers = QStringList{QStringLiteral("office")};
    desktop.chosenPrinter = QStringLiteral("office");
    desktop.openedPrinters.clear();
    PrintChart(form.ChartImage());
    EXPECT_EQ(desktop.openedPrinters.front(), "office");
}

TEST_F(PrintChartTest, TheSettingsOfTheDialogReachThePage) {
    desktop.settle = [](QPrinter& settings) { settings.setPageOrientation(QPageLayout::Landscape); };
    PrintChart(form.ChartImage());
    const QByteArray page = BytesOf(desktop.printerFile);
    const int box = static_cast<int>(page.indexOf("/MediaBox [0 0 "));
    ASSERT_GT(box, 0);
    const QList<QByteArray> numbers = page.mid(box + 15, 30).split(']').front().simplified().split(' ');
    EXPECT_GT(numbers.at(0).toDouble(), numbers.at(1).toDouble());
}

TEST_F(PrintChartTest, AFileInPlaceOfAPrinterIsPrintedInto) {
    const QString other = folder.filePath(QStringLiteral("other.pdf"));
    desktop.chosenPrinter = QString();
    desktop.settle = [&](QPrinter& settings) { settings.setOutputFileName(other); };
    PrintChart(form.ChartImage());
    EXPECT_TRUE(BytesOf(other).startsWith("%PDF"));
    EXPECT_FALSE(HasPage());
}

TEST_F(PrintChartTest, ByNameNobodyIsAsked) {
    PrintChart(form.ChartImage(), QStringLiteral("lab"));
    EXPECT_EQ(desktop.printDialogs, 0);
    EXPECT_EQ(desktop.openedPrinters, QStringList("lab"));
    EXPECT_TRUE(HasPage());
}

TEST_F(PrintChartTest, AWindowTellsWhileItIsPrinted) {
    class Watcher : public QObject {
    public:
        bool eventFilter(QObject* object, QEvent* event) override {
            if (event->type() == QEvent::Show && object->objectName() == "GraphPrinting")
                text = object->findChild<QLabel*>()->text();
            return false;
        }
        QString text;
    } watcher;
    qApp->installEventFilter(&watcher);
    PrintChart(form.ChartImage());
    EXPECT_EQ(watcher.text, "Printing In Progress");
    EXPECT_EQ(form.findChild<QWidget*>(QStringLiteral("GraphPrinting")), nullptr);
}

TEST_F(PrintChartTest, AnErrorOfTheButtonIsShownInABox) {
    desktop.printer.reset();
    desktop.printers.clear();
    form.findChild<QAction*>(QStringLiteral("optPrint"))->trigger();
    ASSERT_EQ(desktop.messages.size(), 1);
    EXPECT_TRUE(desktop.messages.front().text.startsWith(QStringLiteral("Error 482: ")));
}

TEST(PrintPage, WritesOnePageAndLeavesTheChartAsItWas) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("page.pdf"));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(name);
    Chart chart;
    chart.SetGridSize(2, 2);
    chart.Title.Text = QStringLiteral("Title");
    const Chart before = chart;
    PrintPage(chart, {570, 360}, printer);
    EXPECT_EQ(chart, before);
    const QByteArray page = BytesOf(name);
    EXPECT_TRUE(page.startsWith("%PDF"));
    EXPECT_EQ(page.count("/Type /Page\n"), 1);
}

TEST(PrintPage, Raises482WhereThePageCannotBeWritten) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QStringLiteral("/nowhere/at/all/page.pdf"));
    EXPECT_RAISES(482, (PrintPage(Chart(), {570, 360}, printer), 0));
}

#include "viewer/PrintChart.h"

#include "chartcontrol/widget/ChartControl.h"
#include "support/Raises.h"
#include "support/ScriptedDesktop.h"
#include "viewer/GraphForm.h"

#include <QFile>
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
    const ScopedDesktop scope(desktop);
    GraphForm form;
    EXPECT_RAISES(482, (PrintChart(form), 0));
}

TEST(PrintChart, Raises482ForAPrinterThatIsNotThere) {
    ScriptedDesktop desktop;
    desktop.printer = QStringLiteral("no such printer");
    const ScopedDesktop scope(desktop);
    GraphForm form;
    EXPECT_RAISES(482, (PrintChart(form), 0));
}

TEST(ChartOnPaper, HasAWhiteGroundAndNoFrameAndIsTheSameOtherwise) {
    Chart chart;
    chart.SetGridSize(2, 2);
    Chart expected = chart;
    chart.Backdrop.Frame.Style = FrameStyle::ThickOuter;
    chart.Backdrop.Fill.Brush.FillColor = {200, 220, 255};
    chart.Backdrop.Fill.Brush.Style = BrushStyle::Hatch;
    expected.Backdrop.Frame.Style = FrameStyle::None;
    expected.Backdrop.Fill.Brush.FillColor = {255, 255, 255};
    EXPECT_EQ(ChartOnPaper(chart), expected);
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

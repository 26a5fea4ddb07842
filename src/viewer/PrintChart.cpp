#include "viewer/PrintChart.h"

#include "base/Units.h"
#include "chartcontrol/layout/Layout.h"
#include "chartcontrol/paint/PaintScene.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "chartcontrol/widget/ChartControl.h"
#include "desktop/BusyCursor.h"
#include "desktop/CurrentDesktop.h"
#include "qmchart6/RuntimeError.h"
#include "text/LocalHint.h"
#include "viewer/ChartOnPaper.h"
#include "viewer/GraphPrinting.h"
#include "viewer/QmPrintDialog.h"

#include <QPainter>
#include <QPrinter>

#include <algorithm>
#include <functional>
#include <memory>

namespace QmChart6 {

namespace {

constexpr double PageUnitsPerInch = 40;

[[noreturn]] void RaisePrinterError(const QString& detail) {
    throw RuntimeError(ErrorNumber::PrinterError, detail);
}

void RaiseProblem(const QString& problem) {
    if (!problem.isEmpty()) RaisePrinterError(problem);
}

bool Failed(const QPrinter& printer) {
    return printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted;
}

void PrintPageOf(const ChartControl& chart, QPrinter& printer) {
    const BusyCursor busy;
    PrintPage(chart.Model(), {chart.width() * PointsPerPixel, chart.height() * PointsPerPixel}, printer);
}

/// A printer with a name has a queue, unless it is made to print into a file.
void PrintOn(QPrinter& printer, ChartControl& chart) {
    const QString name = printer.printerName();
    const bool queued = printer.outputFileName().isEmpty();
    if (queued) RaiseProblem(CurrentDesktop().PrinterProblem(name));
    const GraphPrinting telling(chart.window());
    if (queued) {
        const std::function<QString()> problem = CurrentDesktop().WatchPrinter(name);
        PrintPageOf(chart, printer);
        RaiseProblem(problem());
    } else {
        PrintPageOf(chart, printer);
    }
    CurrentDesktop().ClearClipboard();
}

} // namespace

void RaiseNoPrinterNamed(const QString& name) {
    const QStringList names = CurrentDesktop().PrinterNames();
    RaisePrinterError(names.isEmpty() ? QStringLiteral("there is no printer")
                                      : QStringLiteral("there is no printer named \"%1\"; there are %2")
                                            .arg(name, names.join(QStringLiteral(", "))));
}

void PrintPage(const Chart& chart, Size windowSize, QPrinter& printer) {
    const QRectF inches = printer.pageRect(QPrinter::Inch);
    const double factor = PageFactor(inches.width() * PageUnitsPerInch, inches.height() * PageUnitsPerInch,
                                     windowSize.width / PointsPerPixel);
    const Size pageSize{windowSize.width * factor, windowSize.height * factor};

    printer.setDocName(chart.Title.Text.simplified());
    QPainter painter;
    if (!painter.begin(&printer))
        RaisePrinterError(QStringLiteral("\"%1\" takes no page").arg(printer.printerName()));
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const double scale = std::min(page.width() / pageSize.width, page.height() / pageSize.height);
    const LayoutRequest request{.size = pageSize, .pixelsPerPoint = scale};
    PaintScene(LayOut(ChartOnPaper(chart, factor), request, QtTextMeasurer()).scene, painter, scale,
               PaintTarget::Vector);
    if (!painter.end() || Failed(printer))
        RaisePrinterError(QStringLiteral("\"%1\" did not take the page").arg(printer.printerName()));
}

void PrintChart(ChartControl& chart) {
    const QmPrintDialog pdChart(chart.window(), chart.width() > chart.height());
    if (const std::unique_ptr<QPrinter> printer = pdChart.Execute()) PrintOn(*printer, chart);
}

void PreviewChart(ChartControl& chart) {
    const std::unique_ptr<QPrinter> printer =
        QmPrintDialog(chart.window(), chart.width() > chart.height()).Proposed();
    CurrentDesktop().PreviewPage(chart.window(), *printer, LocalHint(Hint::PrintPreview),
                                 [&chart](QPrinter& page) { PrintPageOf(chart, page); });
}

void PrintChart(ChartControl& chart, const QString& printerName) {
    const std::unique_ptr<QPrinter> printer = CurrentDesktop().OpenPrinter(printerName);
    if (!printer) RaiseNoPrinterNamed(printerName);
    PrintOn(*printer, chart);
}

} // namespace QmChart6

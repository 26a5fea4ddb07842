#include "viewer/PrintChart.h"

#include "base/Twips.h"
#include "chartcontrol/layout/Layout.h"
#include "chartcontrol/paint/PaintScene.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/Viewer.h"
#include "desktop/Desktop.h"
#include "qmchart6/RuntimeError.h"

#include <QPainter>
#include <QPrinter>

#include <algorithm>
#include <memory>

namespace QmChart6 {

namespace {

[[noreturn]] void RaisePrinterError(const QString& detail) {
    throw RuntimeError(ErrorNumber::PrinterError, detail);
}

} // namespace

Chart ChartOnPaper(Chart chart) {
    chart.Backdrop.Fill.Style = FillStyle::Brush;
    chart.Backdrop.Fill.Brush.Style = BrushStyle::Solid;
    chart.Backdrop.Fill.Brush.FillColor = {255, 255, 255};
    chart.Backdrop.Frame.Style = FrameStyle::None;
    return chart;
}

void PrintPage(const Chart& chart, Size windowSize, QPrinter& printer) {
    QPainter painter;
    if (!painter.begin(&printer))
        RaisePrinterError(QStringLiteral("\"%1\" takes no page").arg(printer.printerName()));
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const double scale = std::min(page.width() / windowSize.width, page.height() / windowSize.height);
    const LayoutRequest request{.size = windowSize, .pixelsPerPoint = scale};
    PaintScene(LayOut(ChartOnPaper(chart), request, QtTextMeasurer()), painter, scale, PaintTarget::Vector);
    if (!painter.end() || printer.printerState() == QPrinter::Error ||
        printer.printerState() == QPrinter::Aborted)
        RaisePrinterError(QStringLiteral("\"%1\" did not finish its page").arg(printer.printerName()));
}

void PrintChart(Viewer& viewer) {
    const std::optional<QString> name = CurrentDesktop().DefaultPrinter();
    if (!name) RaisePrinterError(QStringLiteral("there is no printer"));
    const std::unique_ptr<QPrinter> printer = CurrentDesktop().OpenPrinter(*name);
    if (!printer) RaisePrinterError(QStringLiteral("there is no printer named \"%1\"").arg(*name));
    const ChartControl& chart = viewer.ChartImage();
    PrintPage(chart.Model(), {chart.width() * PointsPerPixel, chart.height() * PointsPerPixel}, *printer);
}

} // namespace QmChart6

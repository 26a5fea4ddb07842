#include "viewer/QmPrintDialog.h"

#include "base/ProcessState.h"
#include "desktop/CurrentDesktop.h"
#include "qmchart6/RuntimeError.h"

#include <QPrinter>

#include <optional>

namespace QmChart6 {

namespace {

/// Null where there is no printer.
std::unique_ptr<QPrinter> OpenCurrentPrinter() {
    const Desktop& desktop = CurrentDesktop();
    const QString& chosen = Process().chosenPrinter;
    if (desktop.PrinterNames().contains(chosen)) return desktop.OpenPrinter(chosen);
    const std::optional<QString> name = desktop.DefaultPrinter();
    return name ? desktop.OpenPrinter(*name) : nullptr;
}

/// A name that no printer bears leaves the process' printer as it was.
void ChoosePrinter(const QString& name) {
    if (CurrentDesktop().PrinterNames().contains(name)) Process().chosenPrinter = name;
}

void CopySettings(const QPrinter& settings, QPrinter& printer) {
    printer.setPageLayout(settings.pageLayout());
    printer.setCopyCount(settings.copyCount());
    printer.setCollateCopies(settings.collateCopies());
    printer.setColorMode(settings.colorMode());
    printer.setDuplex(settings.duplex());
}

} // namespace

std::unique_ptr<QPrinter> QmPrintDialog::Proposed() const {
    std::unique_ptr<QPrinter> settings = OpenCurrentPrinter();
    if (!settings) settings = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (wide_) settings->setPageOrientation(QPageLayout::Landscape);
    return settings;
}

std::unique_ptr<QPrinter> QmPrintDialog::Execute() const {
    std::unique_ptr<QPrinter> settings = Proposed();
    const std::optional<QString> chosen = CurrentDesktop().PickPrinter(owner_, *settings);
    if (!chosen) return nullptr;
    const bool printsIntoFile = chosen->isEmpty() && !settings->outputFileName().isEmpty();
    if (printsIntoFile) return settings;

    ChoosePrinter(*chosen);
    // The printer that was asked about has settings of its own kind too, which no other could take.
    if (!settings->printerName().isEmpty() && settings->printerName() == Process().chosenPrinter)
        return settings;
    std::unique_ptr<QPrinter> printer = OpenCurrentPrinter();
    if (!printer) throw RuntimeError(ErrorNumber::PrinterError, QStringLiteral("there is no printer"));
    CopySettings(*settings, *printer);
    return printer;
}

} // namespace QmChart6

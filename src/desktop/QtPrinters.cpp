// What the desktop knows of printers beyond opening one.
#include "desktop/QtDesktop.h"

#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace QmChart6 {

QStringList QtDesktop::PrinterNames() const {
    return QPrinterInfo::availablePrinterNames();
}

bool QtDesktop::IsPrinterStopped(const QString& name) const {
    const QPrinterInfo found = QPrinterInfo::printerInfo(name);
    return found.isNull() || found.state() == QPrinter::Aborted || found.state() == QPrinter::Error;
}

std::optional<QString> QtDesktop::PickPrinter(QWidget* owner, QPrinter& settings) {
    // The owner may take the dialog along when it goes.
    const QPointer<QPrintDialog> dialog(new QPrintDialog(&settings, owner));
    dialog->setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                       QAbstractPrintDialog::PrintCollateCopies);
    const int result = dialog->exec();
    if (dialog.isNull()) return std::nullopt;
    delete dialog.data();
    if (result != QDialog::Accepted) return std::nullopt;
    return settings.outputFormat() == QPrinter::PdfFormat ? QString() : settings.printerName();
}

} // namespace QmChart6

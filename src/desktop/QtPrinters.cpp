// What the desktop knows of printers beyond opening one.
#include "desktop/PrinterQueue.h"
#include "desktop/QtDesktop.h"
#include "desktop/QtTexts.h"

#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace QmChart6 {

QStringList QtDesktop::PrinterNames() const {
    return QPrinterInfo::availablePrinterNames();
}

QString QtDesktop::PrinterProblem(const QString& name) const {
    return QueueProblem(name);
}

std::function<QString()> QtDesktop::WatchPrinter(const QString& name) const {
    return WatchQueue(name);
}

std::optional<QString> QtDesktop::PickPrinter(QWidget* owner, QPrinter& settings) {
    const QtTexts texts;
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

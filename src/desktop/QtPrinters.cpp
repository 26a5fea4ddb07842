// What the desktop knows of printers beyond opening one.
#include "desktop/PrinterQueue.h"
#include "desktop/QtDesktop.h"
#include "desktop/QtTexts.h"

#include <QPointer>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTimer>

#include <exception>

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

void QtDesktop::PreviewPage(QWidget* owner, QPrinter& printer, const QString& title,
                            const std::function<void(QPrinter& printer)>& paint) {
    const QtTexts texts;
    const QPointer<QPrintPreviewDialog> dialog(new QPrintPreviewDialog(&printer, owner));
    dialog->setWindowTitle(title);
    // No error may pass through the dialog's own code: it waits until that is done.
    std::exception_ptr failure;
    QObject::connect(dialog, &QPrintPreviewDialog::paintRequested, dialog, [&](QPrinter* page) {
        if (failure) return;
        try {
            paint(*page);
        } catch (...) {
            failure = std::current_exception();
            QTimer::singleShot(0, dialog, &QDialog::reject);
        }
    });
    dialog->exec();
    delete dialog.data();
    if (failure) std::rethrow_exception(failure);
}

} // namespace QmChart6

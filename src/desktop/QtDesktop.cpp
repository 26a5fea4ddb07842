#include "desktop/QtDesktop.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QMimeData>
#include <QPrinter>
#include <QPrinterInfo>

namespace QmChart6 {

namespace {

Answer AnswerOf(int button) {
    if (button == QMessageBox::Yes) return Answer::Yes;
    return button == QMessageBox::Ok ? Answer::Ok : Answer::No;
}

} // namespace

Answer QtDesktop::ShowMessage(QWidget* owner, const QString& text, const QString& title,
                              MessageButtons buttons) {
    const bool asks = buttons == MessageButtons::YesNo;
    QMessageBox box(asks ? QMessageBox::Question : QMessageBox::Warning, title, text,
                    asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::StandardButtons(QMessageBox::Ok),
                    owner);
    box.setTextFormat(Qt::PlainText);
    const int button = box.exec();
    return asks ? AnswerOf(button) : Answer::Ok;
}

std::optional<QString> QtDesktop::PickSaveFile(QWidget* owner, const SaveFileRequest& request) {
    QFileDialog dialog(owner, request.title, {}, request.filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(request.suffix);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return dialog.selectedFiles().front();
}

void QtDesktop::SetClipboard(std::unique_ptr<QMimeData> content) {
    QGuiApplication::clipboard()->setMimeData(content.release()); // the clipboard owns it from here
}

const QMimeData* QtDesktop::Clipboard() const {
    return QGuiApplication::clipboard()->mimeData();
}

void QtDesktop::ClearClipboard() {
    QGuiApplication::clipboard()->clear();
}

std::optional<QString> QtDesktop::DefaultPrinter() const {
    const QString name = QPrinterInfo::defaultPrinterName();
    return name.isEmpty() ? std::nullopt : std::optional(name);
}

std::unique_ptr<QPrinter> QtDesktop::OpenPrinter(const QString& name) const {
    const QPrinterInfo found = QPrinterInfo::printerInfo(name);
    if (found.isNull()) return nullptr;
    auto printer = std::make_unique<QPrinter>(found, QPrinter::HighResolution);
    return printer->isValid() ? std::move(printer) : nullptr;
}

} // namespace QmChart6

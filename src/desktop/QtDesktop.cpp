#include "desktop/QtDesktop.h"

#include "desktop/FontPicker.h"
#include "desktop/QtTexts.h"
#include "desktop/SaveFileDialog.h"

#include <QClipboard>
#include <QColorDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QPrinter>
#include <QPrinterInfo>

namespace QmChart6 {

namespace {

/// Runs a dialog that its owner may take along when it goes. Gives the result of exec, nothing where that
/// happened.
template<class Dialog>
std::optional<int> Run(const QPointer<Dialog>& dialog) {
    const int result = dialog->exec();
    return dialog.isNull() ? std::nullopt : std::optional(result);
}

/// Deletes what is left of a dialog.
template<class Dialog>
class DialogScope {
public:
    explicit DialogScope(Dialog* dialog) : dialog_(dialog) {}
    ~DialogScope() { delete dialog_.data(); }
    DialogScope(const DialogScope&) = delete;
    DialogScope& operator=(const DialogScope&) = delete;

    [[nodiscard]] const QPointer<Dialog>& Get() const { return dialog_; }

private:
    QPointer<Dialog> dialog_;
};

} // namespace

Answer QtDesktop::ShowMessage(QWidget* owner, const QString& text, const QString& title,
                              MessageButtons buttons) {
    const QtTexts texts;
    const bool asks = buttons != MessageButtons::Ok;
    const DialogScope box(new QMessageBox(
        asks ? QMessageBox::Question : QMessageBox::Warning, title, text,
        asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::StandardButtons(QMessageBox::Ok), owner));
    box.Get()->setTextFormat(Qt::PlainText);
    if (asks)
        box.Get()->setDefaultButton(buttons == MessageButtons::YesNoByDefault ? QMessageBox::No
                                                                              : QMessageBox::Yes);
    const std::optional<int> button = Run(box.Get());
    if (!asks) return Answer::Ok;
    return button == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

std::optional<QString> QtDesktop::PickSaveFile(QWidget* owner, const SaveFileRequest& request) {
    const QtTexts qtTexts;
    const DialogScope picker(new SaveFileDialog(owner, request));
    const QPointer<SaveFileDialog>& dialog = picker.Get();
    if (Run(dialog) != QDialog::Accepted || dialog->selectedFiles().isEmpty()) return std::nullopt;
    return dialog->selectedFiles().front();
}

void QtDesktop::RunModal(QDialog& dialog) {
    const QtTexts texts;
    dialog.exec();
}

std::optional<QColor> QtDesktop::PickColour(QWidget* owner, const QColor& start, const QString& title) {
    const QtTexts qtTexts;
    const DialogScope picker(new QColorDialog(start, owner));
    const QPointer<QColorDialog>& dialog = picker.Get();
    dialog->setWindowTitle(title);
    if (Run(dialog) != QDialog::Accepted || !dialog->selectedColor().isValid()) return std::nullopt;
    return dialog->selectedColor();
}

std::optional<FontChoice> QtDesktop::PickFont(QWidget* owner, const FontChoice& start,
                                              const FontPickerTexts& texts) {
    const QtTexts qtTexts;
    const DialogScope picker(new FontPicker(*this, start, texts, owner));
    if (Run(picker.Get()) != QDialog::Accepted) return std::nullopt;
    return picker.Get()->Choice();
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

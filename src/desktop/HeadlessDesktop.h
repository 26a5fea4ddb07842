#pragma once

#include "desktop/QtDesktop.h"

namespace QmChart6 {

/// A desktop with nobody at it: a message is one line on the error output and is answered OK or No, a picker
/// gives nothing, a dialog is rejected, a preview is not shown, the print dialog gives what it would begin
/// with. Clipboard and printers are those of the process. Nothing waits.
class HeadlessDesktop : public QtDesktop {
public:
    Answer ShowMessage(QWidget* owner, const QString& text, const QString& title,
                       MessageButtons buttons) override;
    std::optional<QString> PickSaveFile(QWidget* owner, const SaveFileRequest& request) override;
    void RunModal(QDialog& dialog) override;
    std::optional<QColor> PickColour(QWidget* owner, const QColor& start, const QString& title) override;
    std::optional<FontChoice> PickFont(QWidget* owner, const FontChoice& start,
                                       const FontPickerTexts& texts) override;
    [[nodiscard]] std::optional<QString> PickPrinter(QWidget* owner, QPrinter& settings) override;
    void PreviewPage(QWidget* owner, QPrinter& printer, const QString& title,
                     const std::function<void(QPrinter& printer)>& paint) override;
};

} // namespace QmChart6

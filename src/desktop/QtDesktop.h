#pragma once

#include "desktop/Desktop.h"

namespace QmChart6 {

/// A desktop with a person at it. Needs a QApplication.
class QtDesktop : public Desktop {
public:
    Answer ShowMessage(QWidget* owner, const QString& text, const QString& title,
                       MessageButtons buttons) override;
    std::optional<QString> PickSaveFile(QWidget* owner, const SaveFileRequest& request) override;
    void RunModal(QDialog& dialog) override;
    std::optional<QColor> PickColour(QWidget* owner, const QColor& start, const QString& title) override;
    std::optional<FontChoice> PickFont(QWidget* owner, const FontChoice& start,
                                       const FontPickerTexts& texts) override;
    void SetClipboard(std::unique_ptr<QMimeData> content) override;
    [[nodiscard]] const QMimeData* Clipboard() const override;
    void ClearClipboard() override;
    [[nodiscard]] std::optional<QString> DefaultPrinter() const override;
    [[nodiscard]] std::unique_ptr<QPrinter> OpenPrinter(const QString& name) const override;
    [[nodiscard]] QStringList PrinterNames() const override;
    [[nodiscard]] QString PrinterProblem(const QString& name) const override;
    [[nodiscard]] std::function<QString()> WatchPrinter(const QString& name) const override;
    [[nodiscard]] std::optional<QString> PickPrinter(QWidget* owner, QPrinter& settings) override;
    void PreviewPage(QWidget* owner, QPrinter& printer, const QString& title,
                     const std::function<void(QPrinter& printer)>& paint) override;
};

} // namespace QmChart6

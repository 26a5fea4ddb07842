#include "desktop/HeadlessDesktop.h"

#include <QDialog>
#include <QPrinter>

#include <cstdio>

namespace QmChart6 {

Answer HeadlessDesktop::ShowMessage(QWidget* /*owner*/, const QString& text, const QString& title,
                                    MessageButtons buttons) {
    const QString line = title.isEmpty() ? text : title + QStringLiteral(": ") + text;
    std::fprintf(stderr, "%s\n", line.simplified().toLocal8Bit().constData());
    return buttons == MessageButtons::Ok ? Answer::Ok : Answer::No;
}

std::optional<QString> HeadlessDesktop::PickSaveFile(QWidget* /*owner*/, const SaveFileRequest& /*request*/) {
    return std::nullopt;
}

void HeadlessDesktop::RunModal(QDialog& dialog) {
    dialog.reject();
}

std::optional<QColor> HeadlessDesktop::PickColour(QWidget* /*owner*/, const QColor& /*start*/,
                                                  const QString& /*title*/) {
    return std::nullopt;
}

std::optional<FontChoice> HeadlessDesktop::PickFont(QWidget* /*owner*/, const FontChoice& /*start*/,
                                                    const FontPickerTexts& /*texts*/) {
    return std::nullopt;
}

std::optional<QString> HeadlessDesktop::PickPrinter(QWidget* /*owner*/, QPrinter& settings) {
    return settings.printerName();
}

void HeadlessDesktop::PreviewPage(QWidget* /*owner*/, QPrinter& /*printer*/, const QString& /*title*/,
                                  const std::function<void(QPrinter& printer)>& /*paint*/) {}

} // namespace QmChart6

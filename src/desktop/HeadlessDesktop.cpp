#include "desktop/HeadlessDesktop.h"

#include <QPrinter>

#include <cstdio>

namespace QmChart6 {

Answer HeadlessDesktop::ShowMessage(QWidget* /*owner*/, const QString& text, const QString& title,
                                    MessageButtons buttons) {
    const QString line = title.isEmpty() ? text : title + QStringLiteral(": ") + text;
    std::fprintf(stderr, "%s\n", line.simplified().toLocal8Bit().constData());
    return buttons == MessageButtons::YesNo ? Answer::No : Answer::Ok;
}

std::optional<QString> HeadlessDesktop::PickSaveFile(QWidget* /*owner*/, const SaveFileRequest& /*request*/) {
    return std::nullopt;
}

std::optional<QString> HeadlessDesktop::PickPrinter(QWidget* /*owner*/, QPrinter& settings) {
    return settings.printerName();
}

} // namespace QmChart6

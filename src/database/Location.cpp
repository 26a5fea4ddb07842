#include "database/Location.h"

#include "qmchart6/RuntimeError.h"

#include <QFileInfo>
#include <QUrl>

namespace QmChart6 {

namespace {

constexpr int DefaultPort = 5432;

const QString& ServerScheme() {
    static const QString scheme = QStringLiteral("postgresql://");
    return scheme;
}

[[noreturn]] void RaiseNotValid(const QString& text, const char* wanted) {
    throw RuntimeError(ErrorNumber::PathNotValid,
                       QStringLiteral("\"%1\" %2").arg(text, QLatin1String(wanted)));
}

DatabaseLocation ParseServer(const QString& text) {
    const QUrl url(text, QUrl::StrictMode);
    const QString shown = url.isValid() ? url.toString(QUrl::RemovePassword) : ServerScheme();
    const QStringList parts = url.path(QUrl::FullyDecoded).split(u'/');
    if (!url.isValid() || url.host().isEmpty() || parts.size() != 3 || parts[1].isEmpty() ||
        parts[2].isEmpty() || url.hasQuery() || url.hasFragment())
        RaiseNotValid(shown, "is not of the form postgresql://user@host:port/database/");
    return {.text = shown,
            .file = {},
            .server = ServerLocation{.host = url.host(),
                                     .port = url.port(DefaultPort),
                                     .user = url.userName(QUrl::FullyDecoded),
                                     .password = url.password(QUrl::FullyDecoded),
                                     .database = parts[1],
                                     .schema = parts[2]}};
}

} // namespace

DatabaseLocation ParseLocation(const QString& text) {
    if (text.startsWith(ServerScheme(), Qt::CaseInsensitive)) return ParseServer(text);
    if (text.isEmpty() || text.contains(QChar::Null)) RaiseNotValid(text, "names no file");
    return {.text = text, .file = QFileInfo(text).absoluteFilePath(), .server = std::nullopt};
}

} // namespace QmChart6

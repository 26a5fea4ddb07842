#include "database/Location.h"

#include "qmchart6/RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <filesystem>
#include <system_error>

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

bool AreOnePlace(const DatabaseLocation& one, const DatabaseLocation& other) {
    if (!one.server || !other.server) {
        const QString file = QFileInfo(one.file).canonicalFilePath();
        return !one.server && !other.server && !file.isEmpty() &&
               file == QFileInfo(other.file).canonicalFilePath();
    }
    // Who asks makes no other store.
    const ServerLocation& here = *one.server;
    const ServerLocation& there = *other.server;
    return here.host.compare(there.host, Qt::CaseInsensitive) == 0 && here.port == there.port &&
           here.database == there.database && here.schema == there.schema;
}

void RequireSearchable(const DatabaseLocation& location) {
    std::error_code error;
    (void)std::filesystem::status(QFile::encodeName(location.file).toStdString(), error);
    if (error == std::errc::permission_denied)
        throw RuntimeError(
            ErrorNumber::PermissionDenied,
            QStringLiteral("the folder of \"%1\" may not be searched by this account").arg(location.text));
}

DatabaseLocation ParseLocation(const QString& text) {
    if (text.startsWith(ServerScheme(), Qt::CaseInsensitive)) return ParseServer(text);
    if (text.isEmpty() || text.contains(QChar::Null)) RaiseNotValid(text, "names no file");
    return {.text = text, .file = QFileInfo(text).absoluteFilePath(), .server = std::nullopt};
}

} // namespace QmChart6

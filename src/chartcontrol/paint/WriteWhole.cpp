#include "chartcontrol/paint/WriteWhole.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>

namespace QmChart6 {

namespace {

[[noreturn]] void RaiseAs(ErrorNumber number, const QString& fileName, const QString& words) {
    throw RuntimeError(number, words.isEmpty() ? fileName : fileName + QStringLiteral(": ") + words);
}

} // namespace

ErrorNumber NumberOfFileError(int systemError) {
    switch (systemError) {
    case EACCES:
    case EPERM:
    case EROFS:
        return ErrorNumber::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
        return ErrorNumber::DiskFull;
    case ENOENT:
    case ENOTDIR:
        return ErrorNumber::PathNotFound;
    default:
        return ErrorNumber::PathFileAccess;
    }
}

void WriteWhole(const QString& fileName, const QByteArray& bytes) {
    const QFileInfo info(fileName);
    if (info.isDir())
        RaiseAs(ErrorNumber::PathFileAccess, fileName, QStringLiteral("this is a folder, not a file"));
    if (!info.absoluteDir().exists())
        RaiseAs(ErrorNumber::PathNotFound, info.absolutePath(), QStringLiteral("there is no such folder"));
    QSaveFile file(fileName);
    const auto check = [&](bool done) {
        const int systemError = errno;
        if (done) return;
        const QString words = file.errorString();
        file.cancelWriting();
        RaiseAs(NumberOfFileError(systemError), fileName, words);
    };
    errno = 0;
    check(file.open(QIODevice::WriteOnly));
    check(file.write(bytes) == bytes.size());
    check(file.flush());
    check(file.commit());
}

} // namespace QmChart6

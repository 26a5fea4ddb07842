#include "qmchart/InputText.h"

#include "qmchart6/RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <cstdio>

namespace QmChart6 {

namespace {

constexpr qsizetype MostBytes = qsizetype{1} << 30;
constexpr qint64 BlockBytes = qint64{1} << 20;

void Open(QFile& file, const QString& fileName) {
    if (fileName == QLatin1String("-")) {
        if (file.open(stdin, QIODevice::ReadOnly)) return;
        throw RuntimeError(ErrorNumber::PermissionDenied, QStringLiteral("the standard input is not open"));
    }
    if (!QFileInfo::exists(fileName)) throw RuntimeError(ErrorNumber::FileNotFound, fileName);
    if (QFileInfo(fileName).isDir())
        throw RuntimeError(ErrorNumber::PathFileAccess,
                           QStringLiteral("%1 is a folder, not a table").arg(fileName));
    file.setFileName(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorNumber::PermissionDenied,
                           fileName + QStringLiteral(": ") + file.errorString());
}

QByteArray FromUtf16(const QByteArray& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf16);
    const QString text = decoder(bytes);
    if (decoder.hasError() || bytes.size() % 2 != 0)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("the table begins as UTF-16 text, but it is not all such text"));
    return text.toUtf8();
}

void RequireUtf8(const QByteArray& text) {
    if (text.isValidUtf8()) return;
    int line = 1;
    for (qsizetype start = 0; start < text.size(); ++line) {
        const qsizetype feed = text.indexOf('\n', start);
        const qsizetype end = feed < 0 ? text.size() : feed + 1;
        if (!QByteArrayView(text).sliced(start, end - start).isValidUtf8()) break;
        start = end;
    }
    throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                       QStringLiteral("line %1 of the table is not UTF-8 text").arg(line));
}

} // namespace

QByteArray ReadInput(const QString& fileName) {
    QFile file;
    Open(file, fileName);
    QByteArray bytes;
    while (true) {
        const QByteArray block = file.read(BlockBytes);
        if (file.error() != QFileDevice::NoError)
            throw RuntimeError(ErrorNumber::PermissionDenied,
                               fileName + QStringLiteral(": ") + file.errorString());
        if (block.isEmpty()) return bytes;
        if (bytes.size() + block.size() > MostBytes)
            throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                               QStringLiteral("a table is at most 1 GiB of text"));
        bytes += block;
    }
}

QByteArray ToUtf8Text(const QByteArray& bytes) {
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) return FromUtf16(bytes);
    QByteArray text = bytes.startsWith("\xEF\xBB\xBF") ? bytes.sliced(3) : bytes;
    RequireUtf8(text);
    return text;
}

} // namespace QmChart6

#include "qmchart/InputText.h"

#include "qmchart6/RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <array>
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

constexpr QLatin1String Utf8Name("utf-8");
constexpr QLatin1String Utf16Name("utf-16");
constexpr QLatin1String WesternName("windows-1252");

/// What the bytes 0x80 to 0x9f are in Windows' Western European encoding; elsewhere it is Latin-1. The five
/// that it leaves out are control characters, as the web has them.
constexpr std::array<char16_t, 32> WesternRest{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QByteArray FromWestern(const QByteArray& bytes) {
    constexpr char16_t First = 0x80;
    QString text = QString::fromLatin1(bytes);
    for (QChar& letter : text)
        if (letter.unicode() >= First && letter.unicode() < First + WesternRest.size())
            letter = QChar(WesternRest[letter.unicode() - std::size_t{First}]);
    return text.toUtf8();
}

QByteArray FromUtf16(const QByteArray& bytes, const QString& source) {
    QStringDecoder decoder(QStringDecoder::Utf16);
    const QString text = decoder(bytes);
    if (decoder.hasError() || bytes.size() % 2 != 0)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           source + QStringLiteral(": begins as UTF-16 text, but is not all such text"));
    return text.toUtf8();
}

void RequireUtf8(const QByteArray& text, const QString& source) {
    if (text.isValidUtf8()) return;
    int line = 1;
    for (qsizetype start = 0; start < text.size(); ++line) {
        const qsizetype feed = text.indexOf('\n', start);
        const qsizetype end = feed < 0 ? text.size() : feed + 1;
        if (!QByteArrayView(text).sliced(start, end - start).isValidUtf8()) break;
        start = end;
    }
    throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                       source + QStringLiteral(", line %1: this is no UTF-8 text; --encoding %2 reads what "
                                               "programs for Western Europe write")
                                    .arg(line)
                                    .arg(WesternName));
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

QString NameOfInput(const QString& fileName) {
    if (fileName == QLatin1String("-")) return QStringLiteral("the standard input");
    return fileName.isEmpty() ? QStringLiteral("the table") : fileName;
}

QStringList EncodingNames() {
    return {Utf8Name, Utf16Name, WesternName, QStringLiteral("latin-1")};
}

QByteArray ToUtf8Text(const QByteArray& bytes, const QString& encoding, const QString& source) {
    const bool marked16 = bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
    if (encoding == Utf16Name || (encoding.isEmpty() && marked16)) return FromUtf16(bytes, source);
    // Latin-1 is a part of the other; whoever names it has mostly got the whole.
    if (!encoding.isEmpty() && encoding != Utf8Name) return FromWestern(bytes);
    QByteArray text = bytes.startsWith("\xEF\xBB\xBF") ? bytes.sliced(3) : bytes;
    RequireUtf8(text, source);
    return text;
}

} // namespace QmChart6

#include "qmchart/Commands.h"

#include "qmchart6/RuntimeError.h"

#include <cstdio>

using namespace QmChart6;

namespace {

enum Exit : int { Done = 0, Failed = 1, NotUnderstood = 2 };

/// A message is one line, whatever a file name in it holds.
void PrintError(QString message) {
    message.replace(u'\n', u' ').replace(u'\r', u' ');
    std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

int Print(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0) return Done;
    PrintError(
        RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("the standard output cannot be written to"))
            .Message());
    return Failed;
}

int Run(int count, char* arguments[]) {
    QStringList list;
    for (int i = 0; i < count; ++i) list.append(QString::fromLocal8Bit(arguments[i]));
    return Print(RunCommand(ParseCommandLine(list)));
}

} // namespace

int main(int count, char* arguments[]) {
    try {
        return Run(count, arguments);
    } catch (const UsageError& error) {
        PrintError(QStringLiteral("qmchart: %1 (see qmchart --help)").arg(QString::fromUtf8(error.what())));
        return NotUnderstood;
    } catch (const RuntimeError& error) {
        PrintError(error.Message());
    } catch (const std::bad_alloc&) {
        PrintError(QStringLiteral("Error 7: Out of memory"));
    } catch (const std::exception& error) {
        PrintError(
            RuntimeError(ErrorNumber::InvalidProcedureCall, QString::fromUtf8(error.what())).Message());
    }
    return Failed;
}

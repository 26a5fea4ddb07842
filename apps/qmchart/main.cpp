#include "qmchart/Commands.h"

#include "qmchart6/RuntimeError.h"

#include <cstdio>

using namespace QmChart6;

namespace {

enum Exit : int { Done = 0, Failed = 1, NotUnderstood = 2 };

/// A message is one line and whole, whatever a file name or a cell in it holds.
void PrintError(QString message) {
    for (QChar& letter : message)
        if (letter == u'\n' || letter == u'\r')
            letter = u' ';
        else if (letter.category() == QChar::Other_Control)
            letter = QChar::ReplacementCharacter;
    std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

/// Number 5 has a sentence that says nothing to whoever wrote the table or the command; the detail does.
QString Told(const RuntimeError& error) {
    const RuntimeError bare(ErrorNumber::InvalidProcedureCall);
    const QString sentence = bare.Message() + QStringLiteral(": ");
    if (!error.Message().startsWith(sentence)) return error.Message();
    return QStringLiteral("Error %1: ").arg(bare.Number()) + error.Message().sliced(sentence.size());
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
    } catch (const PartlyDone& done) {
        (void)Print(QString::fromUtf8(done.what()));
    } catch (const RuntimeError& error) {
        PrintError(Told(error));
    } catch (const std::bad_alloc&) {
        PrintError(QStringLiteral("Error 7: Out of memory"));
    } catch (const std::exception& error) {
        PrintError(Told(RuntimeError(ErrorNumber::InvalidProcedureCall, QString::fromUtf8(error.what()))));
    }
    return Failed;
}

#include "qmchart/ConfigCommands.h"

#include "qmchart/InputText.h"

#include "qmchart6/Looks.h"

#include <QDir>
#include <QSaveFile>

#include <cstdio>
#include <vector>

namespace QmChart6 {

namespace {

const QString& Store(const CommandLine& line) {
    if (!line.configFolder)
        throw UsageError(QStringLiteral("the folder of the looks is missing: --config FOLDER"));
    return *line.configFolder;
}

/// A place on a server is no folder.
void MakeFolder(const QString& folder) {
    if (folder.contains(QLatin1String("://")) || QDir().mkpath(folder)) return;
    throw RuntimeError(ErrorNumber::PathFileAccess,
                       QStringLiteral("the folder \"%1\" cannot be made").arg(folder));
}

QString Init(const CommandLine& line) {
    const QString folder = AsFolder(line.operands[0]);
    MakeFolder(folder);
    CreateLookStore(folder);
    return QStringLiteral("made %1QmConfig.mdb\n").arg(folder);
}

QString Upgrade(const CommandLine& line) {
    const QString folder = AsFolder(line.operands[0]);
    return UpgradeLookStore(folder) ? QStringLiteral("upgraded %1QmConfig.mdb\n").arg(folder)
                                    : QStringLiteral("%1QmConfig.mdb is up to date\n").arg(folder);
}

/// An older store is no failure, but whoever asked must know.
void WarnOfValuesNotKept(int count, const QString& folder) {
    if (count == 0) return;
    std::fprintf(
        stderr,
        "qmchart: %d values of \"Beyond\" were not kept: the store is older than they are; \"qmchart config "
        "upgrade %s\" makes a place for them\n",
        count, folder.toUtf8().constData());
}

QString List(const CommandLine& line) {
    QString text;
    for (const QString& name : LookNames(Store(line))) text += OnOneLine(name) + u'\n';
    return text;
}

QString ShowLook(const CommandLine& line) {
    return QString::fromUtf8(ExportLook(Store(line), line.operands[0]));
}

QString Delete(const CommandLine& line) {
    DeleteStoredLook(Store(line), line.operands[0]);
    return QStringLiteral("deleted %1\n").arg(OnOneLine(line.operands[0]));
}

QString Bind(const CommandLine& line) {
    BindGraph(Store(line), line.operands[0], line.operands[1]);
    return QStringLiteral("bound %1 to %2\n").arg(OnOneLine(line.operands[0]), OnOneLine(line.operands[1]));
}

QString Bindings(const CommandLine& line) {
    QString text;
    for (const GraphBinding& binding : GraphBindings(Store(line)))
        text += OnOneLine(binding.GraphId) + u'\t' + OnOneLine(binding.Name) + u'\n';
    return text;
}

QString Copy(const CommandLine& line) {
    const QString to = AsFolder(line.operands[1]);
    const CopiedStore copied = CopyLookStore(AsFolder(line.operands[0]), to);
    WarnOfValuesNotKept(copied.ValuesNotKept, to);
    const QString text =
        QStringLiteral("copied %1 looks and %2 bindings\n").arg(copied.Looks).arg(copied.Bindings);
    for (const UncopiedLook& one : copied.LeftOut)
        std::fprintf(stderr, "qmchart: left out \"%s\": %s\n", OnOneLine(one.Name).toUtf8().constData(),
                     OnOneLine(one.Reason).toUtf8().constData());
    if (!copied.LeftOut.isEmpty()) throw PartlyDone(text);
    return text;
}

QString Export(const CommandLine& line) {
    const QByteArray look = ExportLook(Store(line), line.operands[0]);
    if (line.operands[1] == QLatin1String("-")) return QString::fromUtf8(look);
    QSaveFile file(line.operands[1]);
    if (!file.open(QIODevice::WriteOnly) || file.write(look) != look.size() || !file.commit())
        throw RuntimeError(
            ErrorNumber::PathFileAccess,
            QStringLiteral("\"%1\" cannot be written: %2").arg(file.fileName(), file.errorString()));
    return file.fileName() + u'\n';
}

QString Import(const CommandLine& line) {
    const QString& folder = Store(line);
    int notKept = 0;
    const QString name =
        ImportLook(folder, ReadInput(line.operands[0]), line.importName.value_or(QString()), &notKept);
    WarnOfValuesNotKept(notKept, folder);
    return QStringLiteral("stored %1\n").arg(OnOneLine(name));
}

struct ConfigCommand {
    const char* word;
    std::vector<const char*> operands;
    QString (*run)(const CommandLine& line);
};

const std::vector<ConfigCommand>& ConfigCommands() {
    static const std::vector<ConfigCommand> commands{
        {"init", {"FOLDER"}, Init},
        {"upgrade", {"FOLDER"}, Upgrade},
        {"list", {}, List},
        {"show", {"NAME"}, ShowLook},
        {"delete", {"NAME"}, Delete},
        {"bind", {"ID", "NAME"}, Bind},
        {"bindings", {}, Bindings},
        {"copy", {"FROM", "TO"}, Copy},
        {"export", {"NAME", "LOOK.json"}, Export},
        {"import", {"LOOK.json"}, Import},
    };
    return commands;
}

const ConfigCommand& CommandOf(const QString& word) {
    QStringList words;
    for (const ConfigCommand& command : ConfigCommands()) {
        if (word == QLatin1String(command.word)) return command;
        words.append(QLatin1String(command.word));
    }
    throw UsageError(QStringLiteral("config takes one of %1%2")
                         .arg(words.join(QStringLiteral(", ")),
                              word.isEmpty() ? QString() : QStringLiteral(", not \"%1\"").arg(word)));
}

} // namespace

QString RunConfigCommand(const CommandLine& line) {
    const QString word = line.operands.value(0);
    const ConfigCommand& command = CommandOf(word);
    CommandLine rest = line;
    rest.operands.removeFirst();
    if (rest.operands.size() != static_cast<qsizetype>(command.operands.size())) {
        QStringList wanted;
        for (const char* operand : command.operands) wanted.append(QLatin1String(operand));
        throw UsageError(
            QStringLiteral("config %1 takes %2")
                .arg(word, wanted.isEmpty() ? QStringLiteral("nothing behind it") : wanted.join(u' ')));
    }
    return command.run(rest);
}

QString OnOneLine(const QString& name) {
    QString text;
    for (const QChar letter : name) {
        if (letter == u'\\')
            text += QStringLiteral("\\\\");
        else if (letter == u'\n')
            text += QStringLiteral("\\n");
        else if (letter == u'\r')
            text += QStringLiteral("\\r");
        else if (letter == u'\t')
            text += QStringLiteral("\\t");
        else if (letter < u' ' || letter == u'\x7f')
            text += QStringLiteral("\\x%1").arg(static_cast<int>(letter.unicode()), 2, 16, QLatin1Char('0'));
        else
            text += letter;
    }
    return text;
}

} // namespace QmChart6

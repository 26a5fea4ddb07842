#include "qmchart/Commands.h"

#include "qmchart/BuiltInLooks.h"
#include "qmchart/ChosenLook.h"
#include "qmchart/ConfigCommands.h"
#include "qmchart/InputText.h"
#include "qmchart/TableReader.h"

#include "qmchart6/Host.h"
#include "qmchart6/Looks.h"
#include "qmchart6/QMChartArray.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cstdio>

namespace QmChart6 {

namespace {

/// A table with the texts that go with it.
struct TitledTable {
    Table table;
    QString id;
    QString title;
    ChosenLook look;
};

TitledTable ReadTitledTable(const CommandLine& line) {
    const bool named = line.table != QLatin1String("-");
    const QString baseName = QFileInfo(line.table).completeBaseName();
    TitledTable titled;
    titled.table = ReadTable(ReadInput(line.table), {.fileName = line.table,
                                                     .encoding = line.encoding,
                                                     .decimal = line.decimal,
                                                     .separator = line.separator,
                                                     .hasHeader = line.hasHeader,
                                                     .hasRowLabels = line.hasRowLabels});
    for (const QString& warning : titled.table.warnings)
        std::fprintf(stderr, "qmchart: %s\n", OnOneLine(warning).toUtf8().constData());
    titled.id = line.id.value_or(named ? baseName : QStringLiteral("stdin"));
    titled.title = line.title.value_or(named ? PresentableTitle(baseName) : QString());
    titled.look = ChooseLook(line, titled.id, titled.table);
    return titled;
}

/// What makes charts as the command line wants them.
QMChartArray Charts(const CommandLine& line, const TitledTable& titled) {
    QMChartArray charts;
    SetFormatsFollowData(true);
    if (line.configFolder) charts.SetQmChartConfigPath(*line.configFolder);
    constexpr int UsualDpi = 96;
    const QSize size = line.size.value_or(QSize(0, 0));
    SetChartSize(size.width(), size.height(), line.dpi.value_or(UsualDpi));
    if (titled.look.look) UseLook(titled.id, *titled.look.look);
    return charts;
}

QString Show(const CommandLine& line) {
    const TitledTable titled = ReadTitledTable(line);
    if (!HasDisplay())
        throw RuntimeError(ErrorNumber::ActionNotSupported,
                           QStringLiteral("there is no display to show a chart on; \"qmchart save\" makes a "
                                          "picture without one"));
    const Table& table = titled.table;
    Charts(line, titled)
        .QmMakeGraph(titled.id, table.rows, table.columns, table.values, table.rowLabels, table.columnLabels,
                     titled.title, titled.look.rowTitle, line.columnTitle, titled.look.valueTitle,
                     line.language, titled.look.useConfig);
    RunUntilViewersAreClosed();
    return {};
}

/// A program that reads pictures takes them whole.
void WriteToOutput(const QString& fileName) {
    QFile file(fileName);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const auto size = static_cast<std::size_t>(bytes.size());
    if (size == 0 || std::fwrite(bytes.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        throw RuntimeError(ErrorNumber::PathFileAccess,
                           QStringLiteral("the standard output cannot be written to"));
}

QString Save(const CommandLine& line) {
    const TitledTable titled = ReadTitledTable(line);
    const Table& table = titled.table;
    const bool toOutput = line.picture == QLatin1String("-");
    const QTemporaryDir folder;
    QString picture = toOutput ? folder.filePath(QStringLiteral("picture.") + line.format) : line.picture;
    Charts(line, titled)
        .QmSaveGraph(titled.id, table.rows, table.columns, table.values, table.rowLabels, table.columnLabels,
                     titled.title, titled.look.rowTitle, line.columnTitle, titled.look.valueTitle,
                     titled.look.useConfig, picture);
    if (!toOutput) return picture + u'\n';
    WriteToOutput(picture);
    return {};
}

/// Nobody is asked: a command that prints is one that a script runs.
QString Print(const CommandLine& line) {
    const TitledTable titled = ReadTitledTable(line);
    const Table& table = titled.table;
    const QString printer = line.printer.value_or(DefaultPrinterName());
    if (printer.isEmpty())
        throw RuntimeError(
            ErrorNumber::PrinterError,
            QStringLiteral("there is no default printer; \"qmchart printers\" lists those that "
                           "there are, --printer NAME chooses one"));
    SetPrinter(printer);
    Charts(line, titled)
        .QmPrintGraph(titled.id, table.rows, table.columns, table.values, table.rowLabels, table.columnLabels,
                      titled.title, titled.look.rowTitle, line.columnTitle, titled.look.valueTitle,
                      titled.look.useConfig);
    return QStringLiteral("printed on %1\n").arg(printer);
}

QString Printers() {
    QString text;
    const QString byDefault = DefaultPrinterName();
    for (const QString& name : PrinterNames())
        text += name + (name == byDefault ? QStringLiteral(" (default)\n") : QStringLiteral("\n"));
    return text;
}

QString Looks() {
    QString text;
    for (const QString& name : BuiltInLookNames())
        text += QStringLiteral("%1 %2\n").arg(name.leftJustified(12), PurposeOfBuiltInLook(name));
    return text;
}

} // namespace

QString PresentableTitle(const QString& baseName) {
    // A short word of letters and digits, such as co2, is a formula or a name; 1990s and sales2024 are none.
    static const QRegularExpression formula(QStringLiteral("^(?=.*[0-9])[a-z][a-z0-9]{1,3}$"));
    QString spaced = baseName;
    QStringList words = spaced.replace(u'_', u' ').replace(u'-', u' ').simplified().split(u' ');
    for (QString& word : words)
        if (formula.match(word).hasMatch()) word = word.toUpper();
    QString title = words.join(u' ');
    if (!title.isEmpty()) title[0] = title[0].toUpper();
    return title;
}

QString RunCommand(const CommandLine& line) {
    switch (line.command) {
    case Command::Help:
        return HelpText();
    case Command::Version:
        return QStringLiteral("qmchart " QMCHART6_VERSION "\n");
    case Command::Show:
        return Show(line);
    case Command::Save:
        return Save(line);
    case Command::Print:
        return Print(line);
    case Command::Printers:
        return Printers();
    case Command::Looks:
        return Looks();
    case Command::Config:
        return RunConfigCommand(line);
    }
    return {};
}

} // namespace QmChart6

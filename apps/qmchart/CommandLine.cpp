#include "qmchart/CommandLine.h"

#include "qmchart/InputText.h"

#include "qmchart6/Host.h"
#include "qmchart6/Language.h"
#include "qmchart6/QMChartArray.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <array>
#include <utility>

namespace QmChart6 {

namespace {

/// "en, pt or es".
QString OneOf(QStringList words) {
    const QString last = words.takeLast();
    return words.join(QStringLiteral(", ")) + QStringLiteral(" or ") + last;
}

void AddOptions(QCommandLineParser& parser) {
    for (const char* name :
         {"id", "title", "row-title", "column-title", "value-title", "language", "config", "use-config",
          "separator", "decimal", "encoding", "format", "look", "type", "size", "dpi", "as", "printer"})
        parser.addOption({QString::fromLatin1(name), QString(), QStringLiteral("value")});
    for (const char* name : {"no-header", "no-row-labels", "version"})
        parser.addOption(QCommandLineOption(QString::fromLatin1(name)));
    parser.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), QStringLiteral("help")}));
}

std::optional<QString> Given(const QCommandLineParser& parser, const char* name) {
    const QString option = QString::fromLatin1(name);
    return parser.isSet(option) ? std::optional(parser.value(option)) : std::nullopt;
}

/// The value of an option that takes one of a few words, the first where it is not given.
std::int16_t Choice(const QCommandLineParser& parser, const char* name,
                    const QList<std::pair<QString, std::int16_t>>& choices) {
    const std::optional<QString> given = Given(parser, name);
    if (!given) return choices.front().second;
    QStringList words;
    for (const auto& [word, value] : choices) {
        if (*given == word) return value;
        words.append(word);
    }
    throw UsageError(QStringLiteral("--%1 takes one of %2, not \"%3\"")
                         .arg(QLatin1String(name), words.join(QStringLiteral(", ")), *given));
}

std::int16_t LanguageOf(const QCommandLineParser& parser) {
    QList<std::pair<QString, std::int16_t>> numbers;
    for (const QString& code : LanguageCodes())
        numbers.emplaceBack(code, static_cast<std::int16_t>(numbers.size()));
    return Choice(parser, "language", numbers);
}

/// The numbers of the kinds of chart, by their words; in space they are one less.
constexpr std::array ChartWords{std::pair("bar", 1),  std::pair("line", 3),        std::pair("area", 5),
                                std::pair("step", 7), std::pair("combination", 9), std::pair("pie", 14),
                                std::pair("xy", 16)};
constexpr int LastWithDepth = 9;

std::optional<int> ChartTypeOf(const QCommandLineParser& parser) {
    const std::optional<QString> given = Given(parser, "type");
    if (!given) return std::nullopt;
    const bool deep = given->endsWith(QLatin1String("3d"));
    const QString word = deep ? given->chopped(2) : *given;
    QStringList words;
    for (const auto& [name, number] : ChartWords) {
        if (word == QLatin1String(name) && (!deep || number <= LastWithDepth))
            return deep ? number - 1 : number;
        words.append(QLatin1String(name));
    }
    throw UsageError(
        QStringLiteral("--type takes one of %1, the first five with 3d behind them too, not \"%2\"")
            .arg(words.join(QStringLiteral(", ")), *given));
}

/// A look that is named is used, with the caller's titles where nothing else is said.
std::uint8_t UseConfigOf(const QCommandLineParser& parser) {
    const QMChartArray charts;
    const bool look = parser.isSet(QStringLiteral("look"));
    if (look && !parser.isSet(QStringLiteral("use-config")))
        return static_cast<std::uint8_t>(charts.QmChNoTitles());
    if (look && Given(parser, "use-config") == QLatin1String("no"))
        throw UsageError(QStringLiteral("--look gives a look that --use-config no refuses"));
    return static_cast<std::uint8_t>(Choice(parser, "use-config",
                                            {{QStringLiteral("no"), charts.QmChNo()},
                                             {QStringLiteral("no-titles"), charts.QmChNoTitles()},
                                             {QStringLiteral("yes"), charts.QmChYes()}}));
}

std::optional<char> SeparatorOf(const QCommandLineParser& parser) {
    const std::optional<QString> given = Given(parser, "separator");
    if (!given) return std::nullopt;
    if (*given == QLatin1String("tab") || *given == QLatin1String("\\t")) return '\t';
    // What numbers and quoting are written with cannot separate them.
    const QChar character = given->size() == 1 ? given->front() : u'"';
    const bool plain = character == u'\t' || (character >= u' ' && character <= u'~');
    if (!plain || character.isLetterOrNumber() || QStringLiteral("\".-+").contains(character))
        throw UsageError(
            QStringLiteral("--separator takes one character, such as ; or |, or the word tab, not \"%1\"")
                .arg(*given));
    return character.toLatin1();
}

std::optional<char> DecimalOf(const QCommandLineParser& parser) {
    const std::optional<QString> given = Given(parser, "decimal");
    if (!given) return std::nullopt;
    if (*given == QLatin1String(".") || *given == QLatin1String("point")) return '.';
    if (*given == QLatin1String(",") || *given == QLatin1String("comma")) return ',';
    throw UsageError(
        QStringLiteral("--decimal takes . or , (or the word point or comma), not \"%1\"").arg(*given));
}

QString EncodingOf(const QCommandLineParser& parser) {
    const QString given = Given(parser, "encoding").value_or(QString()).toLower();
    if (!parser.isSet(QStringLiteral("encoding")) || EncodingNames().contains(given)) return given;
    throw UsageError(QStringLiteral("--encoding takes %1, not \"%2\"").arg(OneOf(EncodingNames()), given));
}

/// The endings of pictures that can be written, as a person reads them: ".bmp, .png or .emf".
QString OneOfEndings() {
    QStringList endings;
    for (const QString& ending : PictureEndings()) endings.append(u'.' + ending);
    return OneOf(endings);
}

/// Refuses a name that stands for no form of a picture.
void RequirePicture(const CommandLine& line) {
    if (line.command != Command::Save) return;
    const bool toOutput = line.picture == QLatin1String("-");
    if (!toOutput && !line.format.isEmpty())
        throw UsageError(
            QStringLiteral("--format goes with a picture that is -; the name of a file tells it"));
    if (toOutput && !PictureEndings().contains(line.format))
        throw UsageError(
            QStringLiteral("a picture that goes to the standard output takes --format %1%2")
                .arg(OneOf(PictureEndings()),
                     line.format.isEmpty() ? QString() : QStringLiteral(", not \"%1\"").arg(line.format)));
    if (!toOutput && !PictureEndings().contains(QFileInfo(line.picture).suffix().toLower()))
        throw UsageError(QStringLiteral("\"%1\" is no picture that can be written; its name ends in %2")
                             .arg(line.picture, OneOfEndings()));
}

std::optional<QString> FolderOf(const QCommandLineParser& parser) {
    const std::optional<QString> folder = Given(parser, "config");
    if (!folder) return std::nullopt;
    if (folder->isEmpty()) throw UsageError(QStringLiteral("--config takes a folder"));
    return AsFolder(*folder);
}

std::optional<QSize> SizeOf(const QCommandLineParser& parser) {
    const std::optional<QString> given = Given(parser, "size");
    if (!given) return std::nullopt;
    const QStringList sides = given->split(u'x');
    bool isWidth = false;
    bool isHeight = false;
    const QSize size(sides.value(0).toInt(&isWidth), sides.value(1).toInt(&isHeight));
    if (sides.size() != 2 || !isWidth || !isHeight || size.isEmpty())
        throw UsageError(
            QStringLiteral("--size takes two numbers of pixels, such as 800x500, not \"%1\"").arg(*given));
    return size;
}

std::optional<int> DpiOf(const QCommandLineParser& parser) {
    const std::optional<QString> given = Given(parser, "dpi");
    if (!given) return std::nullopt;
    bool isNumber = false;
    const int dpi = given->toInt(&isNumber);
    if (!isNumber || dpi < 1)
        throw UsageError(
            QStringLiteral("--dpi takes a whole number of pixels to an inch, such as 300, not \"%1\"")
                .arg(*given));
    return dpi;
}

/// A command's word, and how many operands it takes behind it.
struct Word {
    const char* text;
    Command command;
    int operands;
    const char* takes;
};
constexpr std::array Words{Word{"show", Command::Show, 1, "one table"},
                           Word{"save", Command::Save, 2, "a table and the picture's file name"},
                           Word{"print", Command::Print, 1, "one table"},
                           Word{"printers", Command::Printers, 0, "nothing"},
                           Word{"looks", Command::Looks, 0, "nothing"},
                           Word{"config", Command::Config, 0, "a command"}};

/// "show, save, print, printers, looks and config"
QString AllWords(const char* before) {
    QStringList words;
    for (const Word& word : Words) words.append(QLatin1String(word.text));
    const QString last = words.takeLast();
    return words.join(QStringLiteral(", ")) + QLatin1String(before) + last;
}

const Word& WordOf(const QStringList& operands) {
    if (operands.isEmpty()) throw UsageError(QStringLiteral("a command is missing: ") + AllWords(" or "));
    for (const Word& word : Words)
        if (operands.front() == QLatin1String(word.text)) return word;
    throw UsageError(
        QStringLiteral("there is no command \"%1\"; there are %2").arg(operands.front(), AllWords(" and ")));
}

/// The command's word and its operands.
void ReadOperands(const QStringList& operands, CommandLine& line) {
    const Word& word = WordOf(operands);
    line.command = word.command;
    if (line.command == Command::Config) {
        line.operands = operands.mid(1);
        return;
    }
    if (operands.size() != word.operands + 1)
        throw UsageError(
            QStringLiteral("%1 takes %2").arg(QLatin1String(word.text), QLatin1String(word.takes)));
    if (word.operands == 0) return;
    line.table = operands[1];
    if (line.table.isEmpty()) throw UsageError(QStringLiteral("the table's file name is empty"));
    if (line.command != Command::Save) return;
    line.picture = operands[2];
    if (line.picture.isEmpty()) throw UsageError(QStringLiteral("save writes a file; its name is missing"));
}

std::optional<QString> PrinterOf(const QCommandLineParser& parser, Command command) {
    std::optional<QString> printer = Given(parser, "printer");
    if (printer && command != Command::Print)
        throw UsageError(QStringLiteral("--printer goes with print only"));
    if (printer && printer->isEmpty()) throw UsageError(QStringLiteral("--printer takes a printer's name"));
    return printer;
}

/// An option that its command does not heed would be missed only later.
void RefuseStrayOptions(const CommandLine& line) {
    const bool makesChart =
        line.command == Command::Show || line.command == Command::Save || line.command == Command::Print;
    if (!makesChart && (line.look || line.size || line.dpi || line.chartType))
        throw UsageError(
            QStringLiteral("--look, --type, --size and --dpi go with show, save and print only"));
    if (!makesChart && (line.decimal || !line.encoding.isEmpty()))
        throw UsageError(QStringLiteral("--decimal and --encoding go with show, save and print only"));
    if (line.command != Command::Save && !line.format.isEmpty())
        throw UsageError(QStringLiteral("--format goes with save only"));
    if (line.importName && line.operands.value(0) != QLatin1String("import"))
        throw UsageError(QStringLiteral("--as goes with config import only"));
}

} // namespace

QString AsFolder(const QString& folder) {
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

UsageError::UsageError(const QString& text) : std::runtime_error(text.simplified().toStdString()) {}

PartlyDone::PartlyDone(const QString& text) : std::runtime_error(text.toStdString()) {}

CommandLine ParseCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    AddOptions(parser);
    if (!parser.parse(arguments)) throw UsageError(parser.errorText());
    CommandLine line;
    if (parser.isSet(QStringLiteral("help"))) return line;
    if (parser.isSet(QStringLiteral("version"))) {
        line.command = Command::Version;
        return line;
    }
    ReadOperands(parser.positionalArguments(), line);
    line.printer = PrinterOf(parser, line.command);
    line.id = Given(parser, "id");
    line.title = Given(parser, "title");
    line.rowTitle = Given(parser, "row-title");
    line.columnTitle = Given(parser, "column-title").value_or(QString());
    line.valueTitle = Given(parser, "value-title").value_or(QString());
    line.language = LanguageOf(parser);
    line.useConfig = UseConfigOf(parser);
    line.useConfigGiven = parser.isSet(QStringLiteral("use-config"));
    line.configFolder = FolderOf(parser);
    line.look = Given(parser, "look");
    line.chartType = ChartTypeOf(parser);
    line.size = SizeOf(parser);
    line.dpi = DpiOf(parser);
    line.importName = Given(parser, "as");
    line.decimal = DecimalOf(parser);
    line.encoding = EncodingOf(parser);
    line.format = Given(parser, "format").value_or(QString()).toLower();
    RefuseStrayOptions(line);
    RequirePicture(line);
    line.separator = SeparatorOf(parser);
    line.hasHeader = !parser.isSet(QStringLiteral("no-header"));
    line.hasRowLabels = !parser.isSet(QStringLiteral("no-row-labels"));
    return line;
}

QString HelpText() {
    return QStringLiteral(R"(Usage:
  qmchart show TABLE [OPTION ...]          show the chart of a table until its window is closed
  qmchart save TABLE PICTURE [OPTION ...]  save its picture and print the file's name
  qmchart print TABLE [OPTION ...]         print it on one page and print the printer's name
  qmchart printers                         the printers' names, one to a line
  qmchart looks                            the looks that come with the program
  qmchart config COMMAND [--config FOLDER] look after stored looks, see below
  qmchart --help | --version

TABLE is a file of separated values, or - for the standard input: one row to a category, one column to a
series, as a rule with labels in the first line and the first column. Missing values are empty, NA, N/A, NaN,
null or -. The numbers of a column may all bear a unit (45%, 12 €), and (12) is -12. PICTURE's ending tells its
format: .bmp, .png, .svg, .pdf or .emf; name@2x.png has twice the pixels, - is the standard output.

Options:
  --id TEXT               the chart's graph id (default: the table's name)
  --title TEXT            the chart's title (default: from the table's name)
  --row-title TEXT        the categories' title (default: the header's first cell)
  --column-title TEXT     the series' title
  --value-title TEXT      the values' title
  --language LANGUAGE     %1: the window's language; pictures have none
  --config FOLDER         the folder of the stored looks, or postgresql://USER@HOST:PORT/DATABASE
  --use-config USE        no, no-titles or yes: use the look stored for the graph id
  --look LOOK             use this look: a file, the name of a stored one or of one that "qmchart looks" lists,
                          or plain for the component's own (default: the one that --config binds, or calm)
  --type TYPE             bar, line, area, step, combination (each with 3d behind it too), pie or xy
  --size WIDTHxHEIGHT     the chart's size in pixels (default: as the look's window has it)
  --dpi NUMBER            the pixels to an inch, which letters and lines are drawn for (default: 96)
  --separator CHARACTER   what separates the cells, or the word tab (default: found out)
  --decimal CHARACTER     . or , where the table alone does not tell (default: found out)
  --encoding ENCODING     %2 (default: UTF-8, or UTF-16 by its mark)
  --format FORM           of a picture that is -: %3
  --printer NAME          print: the printer (default: the system's)
  --no-header             the first line is numbers already
  --no-row-labels         the first column is numbers already
  -h, --help              this text
  --version               the version

Commands of config:
  init FOLDER             make the empty store in a folder, which is made too, or in a database that is there
  upgrade FOLDER          make a place in an older store for what looks say in "Beyond"
  list                    the looks' names
  show NAME               a look as JSON
  delete NAME             delete a look and what is bound to it
  bind ID NAME            bind a graph id to a look
  bindings                the graph ids and their looks, a tab between
  copy FROM TO            copy a whole store into another that is there
  export NAME LOOK.json   write a look to a file, or to - for the standard output
  import LOOK.json        store a look from a file, or from - for the standard input
    --as NAME             under this name (default: the one in the file)

Exit status: 0 done, 1 failed, 2 not understood.
)")
        .arg(OneOf(LanguageCodes()), OneOf(EncodingNames()), OneOf(PictureEndings()));
}

} // namespace QmChart6

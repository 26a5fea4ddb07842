#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <stdexcept>

namespace QmChart6 {

enum class Command { Help, Version, Show, Save, Print, Printers, Looks, Config };

/// What the command line asks for. Texts that are not given have their defaults elsewhere.
struct CommandLine {
    Command command = Command::Help;
    QString table;   ///< a file, or "-" for the standard input
    QString picture; ///< Save only: a file, or "-" for the standard output
    std::optional<QString> printer;
    std::optional<QString> id;
    std::optional<QString> title;
    std::optional<QString> rowTitle;
    QString columnTitle;
    QString valueTitle;
    std::int16_t language = 0;  ///< as QMChartArray numbers them
    std::uint8_t useConfig = 0; ///< likewise
    bool useConfigGiven = false;
    std::optional<QString> configFolder;
    std::optional<QString> look;  ///< a file, a stored look's name, one that comes with the program, or plain
    std::optional<int> chartType; ///< as looks number them
    std::optional<QSize> size;    ///< of the chart, in pixels
    std::optional<int> dpi;       ///< pixels to an inch
    QStringList operands;         ///< Config only: its command, and what that takes
    std::optional<QString> importName; ///< what an imported look is called
    std::optional<char> separator;
    std::optional<char> decimal; ///< '.' or ','
    QString encoding;            ///< one of EncodingNames(); "" where none is given
    QString format;              ///< of a picture that goes to the standard output: an ending
    bool hasHeader = true;
    bool hasRowLabels = true;
};

/// The command line cannot be understood; the text says what is wrong, in one line.
class UsageError : public std::runtime_error {
public:
    explicit UsageError(const QString& text);
};

/// Some of what was asked for was done and told of; the text is what is to be printed.
class PartlyDone : public std::runtime_error {
public:
    explicit PartlyDone(const QString& text);
};

/// Understands the arguments, the program's own name first. Raises UsageError. Needs no application object.
CommandLine ParseCommandLine(const QStringList& arguments);

/// A folder as hosts give it: the text that a file name is put right behind.
QString AsFolder(const QString& folder);

/// What --help prints.
QString HelpText();

} // namespace QmChart6

#include "qmchart/CommandLine.h"
#include "qmchart/Commands.h"
#include "qmchart/ConfigCommands.h"

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

CommandLine Parse(const QStringList& arguments) {
    return ParseCommandLine(QStringList{"qmchart"} + arguments);
}

class RefusedCommandLine : public testing::TestWithParam<QStringList> {};

} // namespace

TEST(CommandLine, ShowTakesATable) {
    const CommandLine line = Parse({"show", "sales.csv"});
    EXPECT_EQ(line.command, Command::Show);
    EXPECT_EQ(line.table, "sales.csv");
    EXPECT_FALSE(line.id || line.title || line.rowTitle || line.configFolder || line.separator);
    EXPECT_TRUE(line.hasHeader && line.hasRowLabels);
    EXPECT_EQ(line.language, 0);
    EXPECT_EQ(line.useConfig, 0);
}

TEST(CommandLine, SaveTakesATableAndAPictureAndOptionsAnywhere) {
    const CommandLine line =
        Parse({"--title", "All sales", "save", "-", "--id=s 1", "sales.png", "--no-header", "--no-row-labels",
               "--row-title", "", "--column-title", "Shops", "--value-title", "EUR"});
    EXPECT_EQ(line.command, Command::Save);
    EXPECT_EQ(line.table, "-");
    EXPECT_EQ(line.picture, "sales.png");
    EXPECT_EQ(line.title, std::optional<QString>("All sales"));
    EXPECT_EQ(line.id, std::optional<QString>("s 1"));
    EXPECT_EQ(line.rowTitle, std::optional<QString>(""));
    EXPECT_EQ(line.columnTitle, "Shops");
    EXPECT_EQ(line.valueTitle, "EUR");
    EXPECT_FALSE(line.hasHeader || line.hasRowLabels);
}

TEST(CommandLine, PrintTakesATableAndAPrinter) {
    EXPECT_EQ(Parse({"print", "t"}).command, Command::Print);
    EXPECT_EQ(Parse({"print", "t"}).table, "t");
    EXPECT_EQ(Parse({"print", "t"}).printer, std::nullopt);
    EXPECT_EQ(Parse({"--printer", "office", "print", "t"}).printer, std::optional<QString>("office"));
    EXPECT_EQ(Parse({"printers"}).command, Command::Printers);
}

TEST(CommandLine, LanguagesAndUsesOfTheConfigurationHaveTheirNumbers) {
    EXPECT_EQ(Parse({"show", "t", "--language", "en"}).language, 0);
    EXPECT_EQ(Parse({"show", "t", "--language", "pt"}).language, 1);
    EXPECT_EQ(Parse({"show", "t", "--language", "es"}).language, 2);
    EXPECT_EQ(Parse({"show", "t", "--language", "it"}).language, 3);
    EXPECT_EQ(Parse({"show", "t", "--use-config", "no"}).useConfig, 0);
    EXPECT_EQ(Parse({"show", "t", "--use-config", "no-titles"}).useConfig, 1);
    EXPECT_EQ(Parse({"show", "t", "--use-config", "yes"}).useConfig, 2);
}

TEST(CommandLine, AConfigurationFolderEndsInASlash) {
    EXPECT_EQ(Parse({"show", "t", "--config", "looks"}).configFolder, std::optional<QString>("looks/"));
    EXPECT_EQ(Parse({"show", "t", "--config", "/looks/"}).configFolder, std::optional<QString>("/looks/"));
}

TEST(CommandLine, ASeparatorIsACharacterOrTheWordTab) {
    EXPECT_EQ(Parse({"show", "t", "--separator", ";"}).separator, std::optional(';'));
    EXPECT_EQ(Parse({"show", "t", "--separator", "tab"}).separator, std::optional('\t'));
    EXPECT_EQ(Parse({"show", "t", "--separator", "\\t"}).separator, std::optional('\t'));
    EXPECT_EQ(Parse({"show", "t", "--separator", "\t"}).separator, std::optional('\t'));
}

TEST(CommandLine, AServerIsAConfigurationFolderToo) {
    EXPECT_EQ(Parse({"show", "a.csv", "--config", "postgresql://ann@db/team"}).configFolder,
              std::optional<QString>("postgresql://ann@db/team/"));
}

TEST(CommandLine, ALookIsUsedWithTheCallersTitlesUnlessItIsSaidOtherwise) {
    const CommandLine plain = Parse({"save", "a.csv", "a.png", "--look", "Board"});
    EXPECT_EQ(plain.look, std::optional<QString>("Board"));
    EXPECT_EQ(plain.useConfig, 1);
    EXPECT_EQ(Parse({"save", "a.csv", "a.png", "--look", "Board", "--use-config", "yes"}).useConfig, 2);
}

TEST(CommandLine, ASizeIsTwoNumbersOfPixels) {
    EXPECT_EQ(Parse({"save", "a.csv", "a.png", "--size", "800x500"}).size, std::optional(QSize(800, 500)));
    EXPECT_FALSE(Parse({"save", "a.csv", "a.png"}).size);
    EXPECT_EQ(Parse({"save", "a.csv", "a.png", "--dpi", "300"}).dpi, std::optional(300));
}

TEST(CommandLine, KindsOfChartHaveTheirNumbers) {
    EXPECT_FALSE(Parse({"show", "t"}).chartType);
    const QList<std::pair<QString, int>> kinds{
        {"bar3d", 0},  {"bar", 1},         {"line3d", 2},        {"line", 3}, {"area", 5},
        {"step3d", 6}, {"combination", 9}, {"combination3d", 8}, {"pie", 14}, {"xy", 16}};
    for (const auto& [word, number] : kinds)
        EXPECT_EQ(Parse({"show", "t", "--type", word}).chartType, number);
}

TEST(CommandLine, LooksTakesNothing) {
    EXPECT_EQ(Parse({"looks"}).command, Command::Looks);
}

TEST(CommandLine, ConfigKeepsItsOperands) {
    const CommandLine line = Parse({"config", "import", "look.json", "--as", "Board", "--config", "looks"});
    EXPECT_EQ(line.command, Command::Config);
    EXPECT_EQ(line.operands, QStringList({"import", "look.json"}));
    EXPECT_EQ(line.importName, std::optional<QString>("Board"));
}

TEST(CommandLine, AConfigCommandThatCannotBeUnderstoodIsAUsageErrorBeforeAnythingIsOpened) {
    for (const QStringList& words :
         {QStringList{}, QStringList{"make"}, QStringList{"init"}, QStringList{"list", "x"},
          QStringList{"bind", "id"}, QStringList{"copy", "a"}, QStringList{"export", "a"}})
        EXPECT_THROW(
            RunConfigCommand(Parse(QStringList{"config"} + words + QStringList{"--config", "/nowhere"})),
            UsageError)
            << words.join(' ').toStdString();
    EXPECT_THROW(RunConfigCommand(Parse({"config", "list"})), UsageError);
}

TEST(CommandLine, ANameStandsOnOneLine) {
    EXPECT_EQ(OnOneLine("a\\b"), "a\\\\b");
    EXPECT_EQ(OnOneLine(QString::fromLatin1("a\nb\tc\rd\x01")), "a\\nb\\tc\\rd\\x01");
}

TEST(CommandLine, HelpAndVersionNeedNothingElse) {
    EXPECT_EQ(Parse({"--help"}).command, Command::Help);
    EXPECT_EQ(Parse({"-h"}).command, Command::Help);
    EXPECT_EQ(Parse({"save", "--help"}).command, Command::Help);
    EXPECT_EQ(Parse({"--version"}).command, Command::Version);
}

TEST_P(RefusedCommandLine, IsAUsageErrorOfOneLine) {
    try {
        Parse(GetParam());
        FAIL() << "understood";
    } catch (const UsageError& error) {
        const QString text = QString::fromUtf8(error.what());
        EXPECT_FALSE(text.isEmpty());
        EXPECT_FALSE(text.contains('\n'));
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, RefusedCommandLine,
    testing::Values(
        QStringList{}, QStringList{"draw", "t"}, QStringList{"show"}, QStringList{"show", "a", "b"},
        QStringList{"show", ""}, QStringList{"save", "t"}, QStringList{"save", "t", "a", "b"},
        QStringList{"save", "t", ""}, QStringList{"save", "t", "-"}, QStringList{"show", "t", "--colour"},
        QStringList{"show", "t", "--title"}, QStringList{"show", "t", "--language", "fr"},
        QStringList{"show", "t", "--use-config", "1"}, QStringList{"show", "t", "--config", ""},
        QStringList{"show", "t", "--separator", ""}, QStringList{"show", "t", "--separator", ",,"},
        QStringList{"show", "t", "--separator", "\""}, QStringList{"show", "t", "--separator", "7"},
        QStringList{"show", "t", "--separator", "."}, QStringList{"show", "t", "--separator", "\n"},
        QStringList{"show", "t", "--separator", QString(QChar(0xA7))},
        QStringList{"show", "t", "--no-header=1"}, QStringList{"print"}, QStringList{"print", "t", "u"},
        QStringList{"print", "t", "--printer", ""}, QStringList{"show", "t", "--printer", "office"},
        QStringList{"printers", "t"}, QStringList{"printers", "--printer", "office"},
        QStringList{"show", "t", "--size", "800"}, QStringList{"show", "t", "--size", "0x5"},
        QStringList{"show", "t", "--size", "8x5x3"}, QStringList{"show", "t", "--size", "axb"},
        QStringList{"show", "t", "--dpi", "0"}, QStringList{"show", "t", "--dpi", "high"},
        QStringList{"printers", "--dpi", "300"},
        QStringList{"show", "t", "--look", "a", "--use-config", "no"}, QStringList{"show", "t", "--as", "a"},
        QStringList{"looks", "a"}, QStringList{"looks", "--type", "bar"},
        QStringList{"show", "t", "--type", "xy3d"}, QStringList{"show", "t", "--type", "Bar"},
        QStringList{"show", "t", "--type", ""}, QStringList{"config", "list", "--look", "a"},
        QStringList{"config", "list", "--size", "8x5"}));

TEST(PresentableTitle, IsWordsThatBeginLikeASentence) {
    EXPECT_EQ(PresentableTitle("barley-by-site"), "Barley by site");
    EXPECT_EQ(PresentableTitle("sales_2024.draft"), "Sales 2024.draft");
    EXPECT_EQ(PresentableTitle("__"), "");
    EXPECT_EQ(PresentableTitle("GDP"), "GDP");
    EXPECT_EQ(PresentableTitle("co2-monthly"), "CO2 monthly");
    EXPECT_EQ(PresentableTitle("rain_and_pm25_in_q1"), "Rain and PM25 in Q1");
    EXPECT_EQ(PresentableTitle("the-1990s-2nd-part-sales2024"), "The 1990s 2nd part sales2024");
}

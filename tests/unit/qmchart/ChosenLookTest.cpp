#include "qmchart/ChosenLook.h"

#include "qmchart/BuiltInLooks.h"
#include "qmchart/FittedLook.h"

#include "qmchart6/Looks.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

Table TableOf(const QByteArray& header) {
    QByteArray row = "a";
    for (int i = 0; i < header.count(','); ++i) row += ",1";
    return ReadTable(header + '\n' + row + '\n', {});
}

ChosenLook Choose(const QStringList& options, const Table& table) {
    return ChooseLook(ParseCommandLine(QStringList{"qmchart", "save", "t.csv", "t.png"} + options), "t",
                      table);
}
ChosenLook Choose(const QStringList& options = {}) {
    return Choose(options, TableOf("Year,North,South"));
}

QJsonObject Json(const ChosenLook& chosen) {
    return QJsonDocument::fromJson(chosen.look.value_or(QByteArray())).object();
}

/// A folder with a look in a file of that name.
class LookFile {
public:
    LookFile(const QString& name, const QByteArray& json) : path_(folder_.filePath(name)) {
        QFile file(path_);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(json) == json.size());
    }
    [[nodiscard]] const QString& Path() const { return path_; }

private:
    QTemporaryDir folder_;
    QString path_;
};

} // namespace

TEST(BuiltInLooks, AreTheExampleLooksAndEachSaysWhatItIsFor) {
    const QDir folder(QStringLiteral(QMCHART6_SOURCE_DIR "/examples/looks"));
    QStringList names = BuiltInLookNames();
    EXPECT_EQ(names.size(), 10);
    for (const QString& name : names) {
        QFile file(folder.filePath(name + ".json"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        EXPECT_EQ(BuiltInLook(name), std::optional(file.readAll()));
        EXPECT_FALSE(PurposeOfBuiltInLook(name).isEmpty());
        EXPECT_NO_THROW(UseLook("t", *BuiltInLook(name)));
    }
    names.sort();
    EXPECT_EQ(folder.entryList({"*.json"}).replaceInStrings(".json", "").join(' '), names.join(' '));
    EXPECT_EQ(BuiltInLook("Calm"), std::nullopt);
}

TEST(ChosenLook, IsTheCalmOneUnasked) {
    const ChosenLook chosen = Choose();
    EXPECT_EQ(chosen.useConfig, 1);
    EXPECT_EQ(Json(chosen).value("ConfigId"), "Calm");
    EXPECT_EQ(chosen.rowTitle, "Year");
}

TEST(ChosenLook, AFileThatSaysLittleIsCompletedByTheCalmOne) {
    const LookFile file("sketch.json", R"({"chartType": 3, "Series": [{"SeriesId": 2, "SeriesStatLine": 1}],
        "Beyond": [{"Element": "Chart", "Field": "XGap", "Value": 10}]})");
    const QJsonObject look = Json(Choose({"--look", file.Path()}));
    const QJsonObject calm = QJsonDocument::fromJson(*BuiltInLook("calm")).object();
    EXPECT_EQ(look.value("chartType"), 3);
    EXPECT_EQ(look.value("TitleFontSize"), calm.value("TitleFontSize"));
    EXPECT_EQ(look.value("Series").toArray().size(), calm.value("Series").toArray().size());
    const QJsonArray beyond = look.value("Beyond").toArray();
    EXPECT_EQ(beyond.size(), calm.value("Beyond").toArray().size());
    EXPECT_TRUE(beyond.contains(QJsonObject({{"Element", "Chart"}, {"Field", "XGap"}, {"Value", 10}})));
}

TEST(ChosenLook, AFileThatDecidesOnTheLegendIsNotOverruled) {
    const LookFile file("none.json", R"({"Legend": false})");
    const QJsonObject look = Json(Choose({"--look", file.Path()}));
    EXPECT_EQ(look.value("Legend"), false);
    for (const auto& record : look.value("Beyond").toArray())
        EXPECT_NE(record.toObject().value("Field"), "LegendFollowsData");
}

TEST(ChosenLook, AFileOfADarkGroundIsCompletedByTheDarkOne) {
    const LookFile file("night.json", R"({"BackColorRed": 10, "BackColorGreen": 12, "BackColorBlue": 20})");
    const QJsonObject look = Json(Choose({"--look", file.Path()}));
    EXPECT_EQ(look.value("BackColorRed"), 10);
    EXPECT_GT(look.value("TitleFontColorRed").toInt(), 150);
}

TEST(ChosenLook, AFileThatSaysHowTextsLookIsTakenAsItIs) {
    const LookFile file("whole.json", R"({"TitleFontName": "Arial", "chartType": 3})");
    EXPECT_FALSE(Json(Choose({"--look", file.Path()})).contains("Beyond"));
}

TEST(ChosenLook, PlainAndNoAreTheComponentsOwn) {
    for (const QStringList& options : {QStringList{"--look", "plain"}, QStringList{"--use-config", "no"}}) {
        EXPECT_EQ(Choose(options).useConfig, 0);
        EXPECT_FALSE(Choose(options).look);
    }
    const ChosenLook lines = Choose({"--look", "plain", "--type", "line"});
    EXPECT_EQ(lines.useConfig, 1);
    EXPECT_EQ(Json(lines), (QJsonObject{{"chartType", 3}}));
}

TEST(ChosenLook, AStoredLookThatIsAskedForIsTheComponentsMatterWhereItCanBeLoaded) {
    const QTemporaryDir folder;
    CreateLookStore(folder.path() + '/');
    const ChosenLook chosen = Choose({"--use-config", "yes", "--config", folder.path()});
    EXPECT_EQ(chosen.useConfig, 2);
    EXPECT_FALSE(chosen.look);
    EXPECT_THROW(Choose({"--use-config", "yes", "--config", "/nowhere"}), RuntimeError);
    // In a window the trouble is told, and the chart shown.
    const CommandLine shown =
        ParseCommandLine({"qmchart", "show", "t.csv", "--use-config", "yes", "--config", "/nowhere"});
    EXPECT_NO_THROW(ChooseLook(shown, "t", TableOf("a,b")));
}

TEST(ChosenLook, AnAxisOfASketchIsThatOfItsPlace) {
    const LookFile sketch("sketch.json",
                          R"({"Axes": [{"AxisScaleVisible": false}], "Series": [{"SeriesIndex": 3}]})");
    const QJsonObject look = Json(Choose({"--look", sketch.Path()}));
    EXPECT_EQ(look.value("Axes").toArray().size(), 4);
    EXPECT_EQ(look.value("Axes").toArray().at(0).toObject().value("AxisScaleVisible"), false);
}

TEST(ChosenLook, AFileOfThatNameIsTakenBeforeALookOfTheProgram) {
    const LookFile file("dark", R"({"ConfigId": "Mine"})");
    EXPECT_EQ(Json(Choose({"--look", file.Path()})).value("ConfigId"), "Mine");
    EXPECT_EQ(Json(Choose({"--look", "dark"})).value("ConfigId"), "Dark");
    EXPECT_THROW(Choose({"--look", "nobody"}), UsageError);
    EXPECT_THROW(Choose({"--look", "nowhere.json"}), RuntimeError);
}

TEST(ChosenLook, WhatIsNoLookIsLeftForWhoReadsLooks) {
    const LookFile file("broken.json", "{\"chartType\"");
    EXPECT_EQ(Choose({"--look", file.Path()}).look, std::optional(QByteArray("{\"chartType\"")));
}

TEST(ChosenLook, AnotherKindIsThatOfEverySeries) {
    const LookFile file("bars.json",
                        R"({"chartType": 1, "Series": [{"SeriesType": 1, "SeriesColorRed": 5}],
                            "TitleFontName": "Arial"})");
    const QJsonObject look = Json(Choose({"--look", file.Path(), "--type", "step3d"}));
    EXPECT_EQ(look.value("chartType").toInt(), 6);
    EXPECT_EQ(look.value("Series").toArray().at(0).toObject(), (QJsonObject{{"SeriesColorRed", 5}}));
}

TEST(ChosenLook, AnXYChartIsNamedByItsColumnsAndDrawsPointsUntilLinesAreAskedFor) {
    const Table table = TableOf("Bird,Flipper,Mass");
    const ChosenLook chosen = Choose({"--type", "xy"}, table);
    EXPECT_EQ(chosen.rowTitle, "Flipper");
    EXPECT_EQ(chosen.valueTitle, "Mass");
    EXPECT_EQ(Json(chosen).value("Lines"), 0);
    EXPECT_EQ(Json(chosen).value("Legend"), false);
    EXPECT_FALSE(chosen.look->contains("LegendFollowsData"));
    const ChosenLook named = Choose({"--type", "xy", "--row-title", "", "--value-title", "kg"}, table);
    EXPECT_EQ(named.rowTitle, "");
    EXPECT_EQ(named.valueTitle, "kg");
    const LookFile joined("joined.json", R"({"chartType": 16, "Lines": 1, "Legend": true})");
    EXPECT_EQ(Json(Choose({"--look", joined.Path()}, table)).value("Lines"), 1);
    EXPECT_EQ(Json(Choose({"--look", joined.Path()}, table)).value("Legend"), true);
    EXPECT_TRUE(Choose({"--type", "xy"}, TableOf("a,b,c,d,e")).look->contains("LegendFollowsData"));
}

TEST(ChosenLook, TheSlicesOfAPieAreTheRowsWhereThereIsOneColumn) {
    EXPECT_EQ(Json(Choose({"--type", "pie"}, TableOf("a,b"))).value("Flipped"), true);
    EXPECT_FALSE(Json(Choose({"--type", "pie"})).contains("Flipped"));
}

TEST(ChosenLook, AreasDoNotHideEachOtherUnlessALookSaysSo) {
    EXPECT_EQ(Json(Choose({"--type", "area"})).value("Stacked"), 1);
    EXPECT_FALSE(Json(Choose({"--type", "line"})).contains("Stacked"));
    const LookFile file("apart.json", R"({"Stacked": 0})");
    EXPECT_EQ(Json(Choose({"--look", file.Path(), "--type", "area"})).value("Stacked"), 0);
}

TEST(ChosenLook, TwoValueAxesAreNamedAfterTheirSeriesUnlessSomebodyNamesThem) {
    const auto axis = [](const ChosenLook& chosen, int id) {
        return Json(chosen).value("Axes").toArray().at(id).toObject();
    };
    const ChosenLook chosen = Choose({"--look", "two-axes"});
    EXPECT_EQ(chosen.useConfig, 2);
    EXPECT_EQ(axis(chosen, 1).value("AxisTitleText"), "North");
    EXPECT_EQ(axis(chosen, 2).value("AxisTitleText"), "South");
    EXPECT_EQ(Json(chosen).value("Legend"), false);
    EXPECT_EQ(axis(chosen, 2).value("AxisScaleVisible"), true);
    EXPECT_EQ(Choose({"--look", "two-axes", "--value-title", "EUR"}).useConfig, 1);
    EXPECT_EQ(Choose({"--look", "two-axes"}, TableOf("a,b,c,d")).useConfig, 1);
    const ChosenLook alone = Choose({"--look", "two-axes"}, TableOf("a,b"));
    EXPECT_EQ(axis(alone, 2).value("AxisScaleVisible"), false);
    const LookFile titled("titled.json", R"({"TitleText": "Old", "Axes": [{"AxisTitleText": "Old"}],
        "Beyond": [{"Element": "Series 2", "Field": "SecondaryAxis", "Value": true}]})");
    const ChosenLook renamed = Choose({"--look", titled.Path()});
    EXPECT_FALSE(renamed.look->contains("Old"));
    EXPECT_NO_THROW(UseLook("t", *renamed.look));
    EXPECT_TRUE(Choose({"--look", titled.Path(), "--use-config", "yes"}).look->contains("Old"));
}

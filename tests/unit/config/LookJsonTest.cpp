#include "config/LookJson.h"

#include "StoreTest.h"

#include <QDir>
#include <QFile>
#include <QSet>

using namespace QmChart6;

namespace {

NamedLook Read(const char* json) {
    return ReadLookJson(QByteArray(json));
}

} // namespace

TEST(LookJsonTest, FieldsThatAreLeftOutAreNotThere) {
    NamedLook named = Read(R"({"ConfigId": "a", "chartType": 3, "Series": [{"SeriesColorRed": 5}]})");
    EXPECT_EQ(named.name, "a");
    EXPECT_EQ(named.look.Of(ChartLook()).at(0).size(), 1U);
    EXPECT_EQ(named.look.Of(SeriesLook()).at(1).at(T("SeriesColorRed")), FieldValue(std::int16_t{5}));
    EXPECT_TRUE(named.look.Of(AxesLook()).empty());
}

TEST(LookJsonTest, AnEmptyObjectIsALook) {
    NamedLook named = Read("{}");
    EXPECT_EQ(named.name, "");
    EXPECT_TRUE(named.look.Find(ChartLook(), 0));
}

TEST(LookJsonTest, RecordsWithoutANumberHaveThatOfTheirPlace) {
    NamedLook named = Read(R"({"Axes": [{}, {}], "Columns": [{}, {"ColumnId": 7}]})");
    EXPECT_TRUE(named.look.Of(AxesLook()).contains(0));
    EXPECT_TRUE(named.look.Of(AxesLook()).contains(1));
    EXPECT_TRUE(named.look.Of(ColumnsLook()).contains(1));
    EXPECT_TRUE(named.look.Of(ColumnsLook()).contains(7));
}

TEST(LookJsonTest, UnknownFieldsAreRefusedByName) {
    for (const char* json : {R"({"Nonsense": 1})", R"({"Series": [{"Nonsense": 1}]})", R"({"charttype": 1})",
                             R"({"Axes": [{"SeriesType": 1}]})"}) {
        try {
            Read(json);
            ADD_FAILURE() << json;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), 3265);
            const QString name = QString::fromLatin1(json).section(u'"', -2, -2);
            EXPECT_TRUE(error.Description().contains(u'"' + name + u'"')) << error.what();
        }
    }
}

TEST(LookJsonTest, ValuesOfAnotherKindAreError13AndThoseOutOfRangeError6) {
    for (const char* json :
         {R"({"chartType": "3"})", R"({"Legend": 1})", R"({"TitleText": 5})", R"({"Lines": null})",
          R"({"chartType": 1.5})", R"({"Lines": [1]})", R"({"ConfigId": 5})"})
        EXPECT_RAISES(13, Read(json));
    EXPECT_RAISES(6, Read(R"({"Lines": 40000})"));
    EXPECT_RAISES(6, Read(R"({"chartType": 1e12})"));
    EXPECT_RAISES(6, Read(R"({"ChartHeight": 1e300})"));
}

TEST(LookJsonTest, NumbersOfRecordsAreChecked) {
    EXPECT_RAISES(380, Read(R"({"Axes": [{"AxisId": 4}]})"));
    EXPECT_RAISES(380, Read(R"({"Axes": [{"AxisId": -1}]})"));
    EXPECT_RAISES(380, Read(R"({"Axes": [{}, {}, {}, {}, {}]})"));
    EXPECT_RAISES(380, Read(R"({"Series": [{"SeriesId": 0}]})"));
    EXPECT_RAISES(3022, Read(R"({"Series": [{"SeriesId": 2}, {}]})"));
}

TEST(LookJsonTest, WhatIsNoLookIsError321) {
    for (const char* json :
         {"", "nonsense", "[]", "{", R"({"Series": 5})", R"({"Series": [5]})", "\xff\xfe", "{} {}"})
        EXPECT_RAISES(321, Read(json));
}

TEST(LookJsonTest, NumbersAreWrittenByTheirShortestDigits) {
    NamedLook named;
    named.look.Start(ChartLook(), 0);
    named.look.Set(ChartLook(), ChartLook().Field(T("TitleFontSize")), 0.1F);
    EXPECT_TRUE(WriteLookJson(named).contains("\"TitleFontSize\": 0.1\n"));
}

TEST(LookJsonTest, TheExampleLooksAreLooksOfAllThatTheySay) {
    const QDir folder(T(QMCHART6_SOURCE_DIR "/examples/looks"));
    const QStringList files = folder.entryList({T("*.json")});
    EXPECT_EQ(files.size(), 10);
    for (const QString& name : files) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray json = file.readAll();
        NamedLook named = ReadLookJson(json);
        EXPECT_FALSE(named.name.isEmpty());
        EXPECT_EQ(WriteLookJson(named), json) << name.toStdString();
        LookState state;
        state.chart.SetGridSize(3, 3);
        EXPECT_TRUE(ApplyLook(state, named.look, true));
        EXPECT_TRUE(state.chart.LegendFollowsData) << name.toStdString();
        EXPECT_EQ(state.chart.Backdrop.Frame.Style, FrameStyle::None) << name.toStdString();
    }
}

TEST(LookFieldsTest, EveryFieldOfTheTablesIsAppliedOnceWhenALookIsLoaded) {
    /// Counts how often each field is asked for.
    class Counter : public LookReader {
    public:
        bool Find(const LookTable& /*table*/, int /*number*/) override { return true; }
        std::optional<FieldValue> Value(const LookTable& table, const LookField& field) override {
            ++counts[table.name + u'.' + field.name];
            return std::nullopt;
        }
        QMap<QString, int> counts;
    } counter;
    LookState state;
    state.chart.SetGridSize(1, 1);
    ApplyLook(state, counter, true);
    for (const LookTable* table : LookTables())
        for (const LookField& field : table->fields)
            EXPECT_EQ(counter.counts.value(table->name + u'.' + field.name), table == &AxesLook() ? 4 : 1)
                << field.name.toStdString();
}

TEST(LookFieldsTest, TheTablesHaveTheirFieldsInTheOrderThatTheyAreWrittenIn) {
    const auto names = [](const LookTable& table, std::size_t first, std::size_t count) {
        QStringList list;
        for (std::size_t i = first; i < first + count; ++i) list.append(table.fields[i].name);
        return list;
    };
    EXPECT_EQ(
        names(ChartLook(), 0, 16).join(u' '),
        "ChartMaximized ChartHeight ChartWidth ControlBar Lines Markers Stacked FullStacked chartType Legend "
        "BackColorRed BackColorGreen BackColorBlue Projection Flipped PieLabelPos");
    EXPECT_EQ(names(ChartLook(), 16, 7).join(u' '),
              "PlotAutoLayout PlotMinX PlotMinY PlotMaxX PlotMaxY Rotation Elevation");
    EXPECT_EQ(
        names(ChartLook(), 23, 16).join(u' '),
        "TitleText TitleLocationType TitleMinX TitleMinY TitleMaxX TitleMaxY TitleOrientation "
        "TitleHorzAlignment TitleVertAlignment TitleFontName TitleFontSize TitleFontStyle TitleFontEffect "
        "TitleFontColorRed TitleFontColorGreen TitleFontColorBlue");
    EXPECT_EQ(ChartLook().fields.size(), 51U);
    EXPECT_EQ(SeriesLook().fields.size(), 21U);
    EXPECT_EQ(AxesLook().fields.size(), 19U);
    QSet<QString> all;
    for (const LookTable* table : LookTables())
        for (const LookField& field : table->fields) all.insert(table->name + field.name);
    EXPECT_EQ(all.size(), 51 + 1 + 21 + 19);
}

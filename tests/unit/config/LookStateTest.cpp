#include "config/LookState.h"

#include "RandomLook.h"
#include "chart/ChartFunctions.h"
#include "chart/DefaultLook.h"
#include "config/Look.h"
#include "support/Raises.h"

#include <functional>
#include <set>

using namespace QmChart6;

namespace {

LookState Tabled(int rows, int columns) {
    LookState look;
    look.chart.SetGridSize(rows, columns);
    ApplyDefaultLook(look.chart);
    // The basis of shares stays once they were shown, and says nothing while they are not.
    SetFullStacked(look.chart, True);
    SetFullStacked(look.chart, False);
    return look;
}

QString Name(const char* text) {
    return QLatin1String(text);
}

/// Writes down which fields it was asked for, record by record, and has none of them.
class AskedFor : public LookReader {
public:
    bool Find(const LookTable& table, int number) override {
        if (&table != &ChartLook()) names.append(QStringLiteral("%1 %2").arg(table.partsName).arg(number));
        return true;
    }
    std::optional<FieldValue> Value(const LookTable& table, const LookField& field) override {
        if (&table == &ChartLook()) names.append(field.name);
        return std::nullopt;
    }
    QStringList names;
};

/// A look whose reading fails at one field.
class BrokenLook : public Look {
public:
    BrokenLook(const Look& look, const char* field) : Look(look), field_(Name(field)) {}
    std::optional<FieldValue> Value(const LookTable& table, const LookField& field) override {
        if (field.name == field_) throw RuntimeError(ErrorNumber::FieldNotFound);
        return Look::Value(table, field);
    }

private:
    QString field_;
};

} // namespace

TEST(LookStateTest, WhatIsCapturedOfAnyKindIsTheSameLookOnceApplied) {
    std::mt19937 random(20261122); // NOLINT(cert-msc51-cpp): the same every time
    std::set<int> kinds;
    for (const int kind : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 16}) {
        for (const bool inRows : {false, true}) {
            Look look = RandomLook(random, 3, 4);
            look.Set(ChartLook(), ChartLook().Field(Name("chartType")), kind);
            look.Set(ChartLook(), ChartLook().Field(Name("Flipped")), inRows);
            LookState state = Tabled(4, 3);
            ASSERT_TRUE(ApplyLook(state, look, true));
            kinds.insert(static_cast<int>(state.chart.chartType()));

            Look captured;
            CaptureLook(state, captured);
            LookState again = Tabled(4, 3);
            ASSERT_TRUE(ApplyLook(again, captured, true));
            EXPECT_EQ(again, state) << kind << inRows;
            Look recaptured;
            CaptureLook(again, recaptured);
            EXPECT_EQ(recaptured, captured) << kind << inRows;
        }
    }
    EXPECT_EQ(kinds.size(), 12U);
}

TEST(LookStateTest, CapturingLeavesALookAsItIs) {
    LookState state = Tabled(2, 3);
    state.chart.Plot.AngleUnit = AngleUnit::Gradians;
    state.chart.Column = 2;
    const LookState before = state;
    Look captured;
    CaptureLook(state, captured);
    EXPECT_EQ(state, before);
    EXPECT_EQ(captured.Of(ColumnsLook()).size(), 3U);
}

TEST(LookStateTest, OptionsThatSpreadAreAppliedBeforeWhatDiffersFromPartToPart) {
    AskedFor reader;
    LookState look = Tabled(1, 1);
    ASSERT_TRUE(ApplyLook(look, reader, true));
    EXPECT_EQ(reader.names.join(u' '),
              "ChartHeight ChartWidth ChartMaximized chartType BackColorRed BackColorGreen BackColorBlue "
              "Flipped Stacked FullStacked PieLabelPos Lines Markers "
              "Columns 1 Rotation Elevation Projection Series 1 Axes 0 Axes 1 Axes 2 Axes 3 "
              "TitleText TitleOrientation TitleHorzAlignment TitleVertAlignment TitleFontName TitleFontSize "
              "TitleFontStyle TitleFontEffect TitleFontColorRed TitleFontColorGreen TitleFontColorBlue "
              "LegendFontName LegendFontSize LegendFontStyle LegendFontEffect LegendFontColorRed "
              "LegendFontColorGreen LegendFontColorBlue Legend ControlBar "
              "PlotMinX PlotMinY PlotMaxX PlotMaxY PlotAutoLayout "
              "TitleLocationType TitleMinX TitleMinY TitleMaxX TitleMaxY "
              "LegendLocationType LegendMinX LegendMinY LegendMaxX LegendMaxY");
}

TEST(LookStateTest, WithoutTitlesTheirTextsAreNotAskedFor) {
    AskedFor reader;
    LookState look = Tabled(1, 1);
    ASSERT_TRUE(ApplyLook(look, reader, false));
    EXPECT_FALSE(reader.names.contains(Name("TitleText")));
    EXPECT_FALSE(reader.names.contains(Name("Columns 1")));
    EXPECT_TRUE(reader.names.contains(Name("TitleFontName")));
}

TEST(LookStateTest, WhatFailsLeavesWhatCameBeforeIt) {
    LookState source = Tabled(2, 2);
    source.chart.SetChartType(ChartType::Area2D);
    source.height = 6000;
    source.controlBar = false;
    Look captured;
    CaptureLook(source, captured);
    BrokenLook broken(captured, "Projection");
    LookState look = Tabled(2, 2);
    EXPECT_RAISES(3265, ApplyLook(look, broken, true));
    EXPECT_EQ(look.chart.chartType(), ChartType::Area2D);
    EXPECT_EQ(look.height, 6000);
    EXPECT_TRUE(look.controlBar);
}

TEST(LookStateTest, ALookThatIsNotMaximizedRestoresNothing) {
    Look normal;
    CaptureLook(Tabled(1, 1), normal);
    LookState look = Tabled(1, 1);
    look.maximized = true;
    ASSERT_TRUE(ApplyLook(look, normal, true));
    EXPECT_TRUE(look.maximized);
}

TEST(LookStateTest, ATableWhoseColumnsAreCalledSoAlreadyStaysShared) {
    LookState look = Tabled(100, 2);
    Look captured;
    CaptureLook(look, captured);
    const LookState before = look;
    ASSERT_TRUE(ApplyLook(look, captured, true));
    EXPECT_EQ(look.chart.DataGrid.Column(1).first, before.chart.DataGrid.Column(1).first);
}

TEST(LookStateTest, NeitherTheWindowNorTheCurrentCellIsSeen) {
    const LookState look = Tabled(3, 3);
    const std::vector<std::function<void(LookState&)>> unseen{
        [](LookState& other) { other.maximized = true; }, [](LookState& other) { other.width = 1; },
        [](LookState& other) { other.height = 1; },       [](LookState& other) { other.chart.Row = 2; },
        [](LookState& other) { other.chart.Column = 2; },
    };
    for (const auto& change : unseen) {
        LookState other = look;
        change(other);
        EXPECT_TRUE(LookAlike(look, other));
        EXPECT_NE(look, other);
    }
    const std::vector<std::function<void(LookState&)>> seen{
        [](LookState& other) { other.lines = 0; },
        [](LookState& other) { other.markers = 1; },
        [](LookState& other) { other.stacked = 1; },
        [](LookState& other) { other.fullStacked = 1; },
        [](LookState& other) { other.controlBar = false; },
        [](LookState& other) { other.chart.Title.Text = Name("Costs"); },
    };
    for (const auto& change : seen) {
        LookState other = look;
        change(other);
        EXPECT_FALSE(LookAlike(look, other));
    }
}

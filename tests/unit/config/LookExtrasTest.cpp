#include "config/LookExtras.h"

#include "RandomLook.h"
#include "chart/ChartFunctions.h"
#include "chart/DefaultLook.h"
#include "chart/ValueLabelFormat.h"
#include "config/Look.h"
#include "config/LookJson.h"
#include "support/Raises.h"

#include <set>

using namespace QmChart6;

namespace {

/// What a host has filled and nobody has changed yet.
LookState Fresh(int columns = 3) {
    LookState look;
    look.chart.Backdrop.Frame.Style = FrameStyle::ThickOuter;
    look.chart.SetGridSize(4, columns);
    ApplyDefaultLook(look.chart);
    return look;
}

Look Captured(const LookState& state) {
    Look look;
    CaptureLook(state, look);
    return look;
}

/// A look that says nothing but these records {Element, Field, Value}.
Look Beyond(const QByteArray& records) {
    return ReadLookJson("{\"Beyond\": [" + records + "]}").look;
}
QByteArray Record(const char* element, const char* field, const char* value) {
    return QByteArray("{\"Element\": \"") + element + "\", \"Field\": \"" + field +
           "\", \"Value\": " + value + "}";
}
Look Beyond(const char* element, const char* field, const char* value) {
    return Beyond(Record(element, field, value));
}

void Apply(LookState& state, Look look) {
    ASSERT_TRUE(ApplyLook(state, look, true));
}

/// A look with records of three series that says nothing.
Look Plain() {
    return ReadLookJson(R"({"Series": [{}, {}, {}]})").look;
}

QString TextOfRefusal(const QByteArray& records) {
    try {
        Beyond(records);
    } catch (const RuntimeError& error) {
        return error.Message();
    }
    return {};
}

/// A value that the field takes and a new chart does not have.
ExtraValue AnotherValue(const ExtraField& field, const ExtraValue& plain) {
    if (const bool* truth = std::get_if<bool>(&plain)) return !*truth;
    if (const double* number = std::get_if<double>(&plain))
        return *number < std::get<double>(field.most) ? *number + 1 : *number - 1;
    return field.colour ? QStringLiteral("#0a0b0c") : QStringLiteral("#,##0.0 \"kg\"");
}

} // namespace

TEST(LookExtrasTest, EachFieldIsGivenToTheChartCapturedAgainAndTakenBack) {
    std::set<std::pair<ExtraOf, QString>> names;
    for (const ExtraField& field : ExtraFields()) {
        const int number = field.of == ExtraOf::Chart ? EveryOne : 2;
        const ExtraKey key{field.of, number, field.name};
        EXPECT_TRUE(names.emplace(field.of, field.name).second) << field.name.toStdString();
        LookState state = Fresh();
        Apply(state, Plain());
        const Chart plain = state.chart;
        const ExtraValue value = AnotherValue(field, field.read(state.chart, qMax(0, number)));
        Look look = Plain();
        look.SetExtras({{key, CheckedExtra(key, value)}});
        Apply(state, look);
        EXPECT_EQ(field.read(state.chart, qMax(0, number)), value) << field.name.toStdString();
        EXPECT_NE(state.chart, plain) << field.name.toStdString();
        EXPECT_EQ(Captured(state).SaidBeyond(), look.SaidBeyond()) << field.name.toStdString();
        Apply(state, Plain());
        EXPECT_EQ(state.chart, plain) << field.name.toStdString();
        EXPECT_TRUE(Captured(state).SaidBeyond().empty());
    }
    EXPECT_EQ(names.size(), ExtraFields().size());
}

TEST(LookExtrasTest, ValuesComeBackFromJsonAndFromTexts) {
    for (const ExtraField& field : ExtraFields()) {
        LookState state = Fresh();
        const ExtraKey key{field.of, field.of == ExtraOf::Chart ? EveryOne : 1, field.name};
        const ExtraValue value = AnotherValue(field, field.read(state.chart, 1));
        EXPECT_EQ(ExtraOfText(key, ExtraText(value)), value) << field.name.toStdString();
        EXPECT_EQ(ExtraKeyOf(ElementText(key), key.field), key);
    }
    const QByteArray json = "{\"Beyond\": [" + Record("Axis 1", "AutoScale", "false") + ',' +
                            Record("Axis 1", "Maximum", "1234567.89") + ',' +
                            Record("Series", "LineWidth", "0.1") + ',' +
                            Record("Series 12", "SecondaryAxis", "true") + "]}";
    const NamedLook named = ReadLookJson(json);
    EXPECT_EQ(named.look.SaidBeyond().size(), 4U);
    const QByteArray written = WriteLookJson(named);
    EXPECT_TRUE(written.contains("1234567.89")) << written.toStdString();
    EXPECT_EQ(ReadLookJson(written).look, named.look);
}

TEST(LookExtrasTest, PlainLooksSayNothingBeyondWhateverWasEdited) {
    std::mt19937 random(20261122); // NOLINT(cert-msc51-cpp): the same every time
    for (int i = 0; i < 50; ++i) {
        LookState state = Fresh(1 + i % 12);
        Apply(state, RandomLook(random, 3, 4));
        const Look captured = Captured(state);
        EXPECT_TRUE(captured.SaidBeyond().empty());
        EXPECT_FALSE(WriteLookJson({QStringLiteral("a"), captured}).contains("Beyond"));
    }
    for (const Truth full : {True, False}) {
        LookState state = Fresh(1);
        SetFullStacked(state.chart, full);
        EXPECT_TRUE(Captured(state).SaidBeyond().empty());
    }
}

TEST(LookExtrasTest, APlainLookTakesALogarithmicAxisBackAndKeepsWhatStoredFieldsWrite) {
    LookState state = Fresh();
    Apply(state, Beyond(Record("Axis 1", "Logarithmic", "true") + ',' +
                        Record("Axis 1", "LabelFormat", "\"0.0E+00\"") + ',' +
                        Record("Series", "ValueFormat", "\"0 kg\"")));
    EXPECT_EQ(state.chart.Plot.Axis(AxisId::Y).AxisScale.Type, ScaleType::Logarithmic);
    Apply(state, ReadLookJson(R"({"FullStacked": 1, "Series": [{}]})").look);
    EXPECT_EQ(state.chart.Plot.Axis(AxisId::Y).AxisScale.Type, ScaleType::Percent);
    EXPECT_EQ(state.chart.Plot.Axis(AxisId::Y).Labels.Item(1).Format, "0%");
    for (int number = 1; number <= 3; ++number)
        EXPECT_EQ(state.chart.Plot.SeriesCollection(number)
                      .DataPoints.Item(DataPoints::All)
                      .DataPointLabel.ValueFormat,
                  ValueLabelFormat());
}

TEST(LookExtrasTest, WhatSomebodyElseWroteSinceIsLeftAlone) {
    LookState state = Fresh();
    Apply(state, Beyond("Series", "ValueFormat", "\"0 kg\""));
    DataPointLabel& label =
        state.chart.Plot.SeriesCollection(2).DataPoints.Item(DataPoints::All).DataPointLabel;
    label.ValueFormat = QStringLiteral("0.000");
    Apply(state, ReadLookJson("{}").look);
    EXPECT_EQ(label.ValueFormat, "0.000");
    EXPECT_EQ(
        state.chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).DataPointLabel.ValueFormat,
        "0");
}

TEST(LookExtrasTest, AScaleThatAPersonMadePercentIsNoLongerLogarithmic) {
    LookState state = Fresh();
    Apply(state, Beyond("Axis 1", "Logarithmic", "true"));
    SetFullStacked(state.chart, True);
    EXPECT_TRUE(Captured(state).SaidBeyond().empty());
}

TEST(LookExtrasTest, WhatIsSaidOfAllIsSaidOfSeriesToComeButForThoseThatDiffer) {
    const Look look = Beyond(Record("Series", "LineWidth", "2") + ',' + Record("Series 2", "LineWidth", "4") +
                             ',' + Record("Series 30", "MarkerSize", "9"));
    LookState state = Fresh(3);
    Apply(state, look);
    EXPECT_EQ(state.chart.Plot.SeriesCollection(1).LinePen.Width, 2);
    EXPECT_EQ(state.chart.Plot.SeriesCollection(2).LinePen.Width, 4);
    EXPECT_EQ(Captured(state).SaidBeyond(), look.SaidBeyond());
    state.chart.Plot.SeriesCollection(3).LinePen.Width = 5;
    Look captured = Captured(state);
    LookState other = Fresh(3);
    Apply(other, captured);
    EXPECT_EQ(other.chart.Plot.SeriesCollection(1).LinePen.Width, 2);
    EXPECT_EQ(other.chart.Plot.SeriesCollection(3).LinePen.Width, 5);
    EXPECT_TRUE(captured.SaidBeyond().contains({ExtraOf::Series, 30, QStringLiteral("MarkerSize")}));
}

TEST(LookExtrasTest, WhatWasChangedInTheChartItselfIsCaptured) {
    LookState state = Fresh();
    state.chart.Plot.Axis(AxisId::Y).ValueScale = {
        .Auto = false, .Minimum = 0, .Maximum = 8.5, .MajorDivision = 4};
    state.chart.Plot.DirectNames = true;
    state.chart.Plot.SeriesCollection(2).SecondaryAxis = true;
    LookState again = Fresh();
    Apply(again, Captured(state));
    EXPECT_EQ(again.chart.Plot.Axis(AxisId::Y).ValueScale, state.chart.Plot.Axis(AxisId::Y).ValueScale);
    EXPECT_TRUE(again.chart.Plot.DirectNames);
    EXPECT_TRUE(again.chart.Plot.SeriesCollection(2).SecondaryAxis);
    EXPECT_FALSE(again.chart.Plot.SeriesCollection(1).SecondaryAxis);
}

TEST(LookExtrasTest, ALegendThatFollowsTheDataIsThereFromTwoSeriesOn) {
    for (const int columns : {1, 2}) {
        LookState state = Fresh(columns);
        Look look = Beyond("Chart", "LegendFollowsData", "true");
        look.Set(ChartLook(), ChartLook().Field(QStringLiteral("Legend")), columns == 1);
        Apply(state, look);
        EXPECT_TRUE(state.chart.LegendFollowsData);
        EXPECT_EQ(state.chart.ShowLegend, columns == 2);
    }
}

TEST(LookExtrasTest, WhatMeansNothingIsRefusedAndTheErrorSaysWhatIsExpected) {
    EXPECT_RAISES(321, Beyond("Legend", "BarGap", "1"));
    EXPECT_RAISES(321, Beyond("Axis 4", "LineStyle", "1"));
    EXPECT_RAISES(321, Beyond("Series 0", "LineWidth", "1"));
    EXPECT_RAISES(321, Beyond("Series 01", "LineWidth", "1"));
    EXPECT_RAISES(321, Beyond("Chart 1", "BarGap", "1"));
    EXPECT_RAISES(3265, Beyond("Chart", "LineWidth", "1"));
    EXPECT_RAISES(13, Beyond("Series", "LineWidth", "\"thick\""));
    EXPECT_RAISES(13, Beyond("Chart", "DirectNames", "1"));
    EXPECT_RAISES(13, Beyond("Axis 1", "LabelFormat", "5"));
    EXPECT_RAISES(380, Beyond("Series", "LineWidth", "-1"));
    EXPECT_RAISES(380, Beyond("Axis 0", "LineStyle", "1.5"));
    EXPECT_RAISES(380, Beyond("Axis 0", "LineColor", "\"red\""));
    EXPECT_RAISES(3022, Beyond(Record("Chart", "XGap", "1") + ',' + Record("Chart", "XGap", "2")));
    for (const char* json :
         {R"({"Beyond": 1})", R"({"Beyond": [1]})", R"({"Beyond": [{"Element": "Chart", "Field": "XGap"}]})",
          R"({"Beyond": [{"Element": "Chart", "Field": "XGap", "Value": [1]}]})",
          R"({"Beyond": [{"Element": "Chart", "Field": "XGap", "Value": 1, "Unit": 2}]})",
          R"({"Beyond": [{"Field": "XGap", "Value": 1}]})"})
        EXPECT_RAISES(321, ReadLookJson(json));
    EXPECT_TRUE(
        TextOfRefusal(Record("Legend", "a", "1")).contains(QStringLiteral("\"Axis 0\" to \"Axis 3\"")));
    EXPECT_TRUE(TextOfRefusal(Record("Chart", "a", "1")).contains(QStringLiteral("DirectNames, ")));
    EXPECT_TRUE(
        TextOfRefusal(Record("Series 3", "LineWidth", "\"x\""))
            .contains(QStringLiteral("\"LineWidth\" of \"Series 3\" is a number from 0 to 100, not \"x\"")));
}

TEST(LookExtrasTest, ARangeIsWholeAndNotAutomatic) {
    const QByteArray fixed = Record("Axis 1", "AutoScale", "false") + ',';
    EXPECT_RAISES(380, Beyond("Axis 1", "Minimum", "5"));
    EXPECT_RAISES(380, Beyond(fixed + Record("Axis 1", "Minimum", "200")));
    EXPECT_RAISES(380,
                  Beyond(fixed + Record("Axis 1", "Minimum", "3") + ',' + Record("Axis 1", "Maximum", "3")));
    EXPECT_RAISES(380, Beyond(fixed + Record("Axis 1", "Maximum", "9") + ',' +
                              Record("Axis 1", "Logarithmic", "true")));
    LookState state = Fresh();
    Apply(state, Beyond(fixed + Record("Axis 1", "Minimum", "-3") + ',' + Record("Axis 1", "Maximum", "5") +
                        ',' + Record("Axis 1", "MajorDivision", "8")));
    EXPECT_EQ(state.chart.Plot.Axis(AxisId::Y).ValueScale,
              (ValueScale{.Auto = false, .Minimum = -3, .Maximum = 5, .MajorDivision = 8}));
    EXPECT_EQ(state.chart.Plot.Axis(AxisId::SecondaryY).ValueScale, ValueScale());
}

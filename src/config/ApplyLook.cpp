#include "chart/ValueLabelFormat.h"
#include "config/Look.h"
#include "config/LookExtrasState.h"

namespace QmChart6 {

namespace {

void ReadField(LookReader& reader, const LookTable& table, const LookField& field, const LookPart& part,
               bool loadTitles) {
    if (field.isTitle && !loadTitles) return;
    if (const std::optional<FieldValue> value = reader.Value(table, field)) field.set(part, *value);
}

/// Reads the whole look's fields of the steps from `first` to `last`.
void ReadSteps(LookReader& reader, LookState& look, Step first, Step last, bool loadTitles) {
    for (int step = static_cast<int>(first); step <= static_cast<int>(last); ++step)
        for (const LookField& field : ChartLook().fields)
            if (static_cast<int>(field.step) == step)
                ReadField(reader, ChartLook(), field, {.look = look}, loadTitles);
}

/// Reads a record where there is one.
bool ReadRecord(LookReader& reader, const LookTable& table, const LookPart& part, bool loadTitles) {
    if (!reader.Find(table, part.number)) return false;
    for (const LookField& field : table.fields) ReadField(reader, table, field, part, loadTitles);
    return true;
}

void ReadColumns(LookReader& reader, LookState& look) {
    for (int column = 1; column <= look.chart.ColumnCount(); ++column)
        ReadRecord(reader, ColumnsLook(), {look, column}, true);
}

void ReadSeries(LookReader& reader, LookState& look, bool loadTitles) {
    SeriesCollection& all = look.chart.Plot.SeriesCollection;
    for (int series = 1; series <= all.Count(); ++series) {
        if (!ReadRecord(reader, SeriesLook(), {look, series}, loadTitles)) continue;
        DataPoint& points = all(series).DataPoints.Item(DataPoints::All);
        // A look keeps no colour for them: statistics lines are drawn in their series' own, as when edited.
        all(series).StatLine.VtColor = points.Brush.FillColor;
        DataPointLabel& label = points.DataPointLabel;
        label.PercentFormat = QStringLiteral("0.0%");
        label.ValueFormat = ValueLabelFormat();
    }
}

void ReadAxes(LookReader& reader, LookState& look, bool loadTitles) {
    for (int axis = 0; axis <= static_cast<int>(AxisId::Z); ++axis)
        ReadRecord(reader, AxesLook(), {look, axis}, loadTitles);
}

} // namespace

bool ApplyLook(LookState& look, LookReader& reader, bool loadTitles) {
    if (!reader.Find(ChartLook(), 0)) return false;
    ResetExtras(look);
    ReadSteps(reader, look, Step::Size, Step::Marks, loadTitles);
    if (loadTitles) ReadColumns(reader, look);
    ReadSteps(reader, look, Step::View, Step::Projection, loadTitles);
    ReadSeries(reader, look, loadTitles);
    ReadAxes(reader, look, loadTitles);
    ReadSteps(reader, look, Step::Texts, Step::Places, loadTitles);
    ApplyExtras(look, reader.Extras());
    return true;
}

} // namespace QmChart6

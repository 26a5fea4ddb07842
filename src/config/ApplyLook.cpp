#include "chart/ValueLabelFormat.h"
#include "config/Look.h"
#include "config/LookExtrasState.h"

#include <algorithm>
#include <span>

namespace QmChart6 {

namespace {

void ReadField(LookReader& reader, const LookTable& table, const LookField& field, const LookPart& part,
               bool loadTitles) {
    if (field.isTitle && !loadTitles) return;
    if (const std::optional<FieldValue> value = reader.Value(table, field)) field.set(part, *value);
}

using Fields = std::span<const LookField>;

/// Reads fields that are given as one: where one of them fails, none is given.
void ReadTogether(LookReader& reader, const LookTable& table, Fields fields, const LookPart& part,
                  bool loadTitles) {
    std::vector<FieldValue> before;
    for (const LookField& field : fields) before.push_back(field.get(part));
    try {
        for (const LookField& field : fields) ReadField(reader, table, field, part, loadTitles);
    } catch (...) {
        for (std::size_t i = 0; i < fields.size(); ++i) fields[i].set(part, before[i]);
        throw;
    }
}

void ReadFields(LookReader& reader, const LookTable& table, Fields fields, const LookPart& part,
                bool loadTitles) {
    for (std::size_t i = 0; i < fields.size();) {
        const auto count = static_cast<std::size_t>(fields[i].together);
        if (count > 1)
            ReadTogether(reader, table, fields.subspan(i, count), part, loadTitles);
        else
            ReadField(reader, table, fields[i], part, loadTitles);
        i += count;
    }
}

/// Reads the whole look's fields of the steps from `first` to `last`.
void ReadSteps(LookReader& reader, LookState& look, Step first, Step last, bool loadTitles) {
    const std::vector<LookField>& fields = ChartLook().fields;
    for (int step = static_cast<int>(first); step <= static_cast<int>(last); ++step)
        for (std::size_t i = 0; i < fields.size();) {
            const auto count = static_cast<std::size_t>(fields[i].together);
            if (static_cast<int>(fields[i].step) == step)
                ReadFields(reader, ChartLook(), Fields(fields).subspan(i, count), {.look = look}, loadTitles);
            i += count;
        }
}

/// Reads a record where there is one.
bool ReadRecord(LookReader& reader, const LookTable& table, const LookPart& part, bool loadTitles) {
    if (!reader.Find(table, part.number)) return false;
    ReadFields(reader, table, table.fields, part, loadTitles);
    return true;
}

void ReadColumns(LookReader& reader, LookState& look) {
    for (int column = 1; column <= look.chart.ColumnCount(); ++column)
        ReadRecord(reader, ColumnsLook(), {look, column}, true);
}

void ReadSeries(LookReader& reader, LookState& look, bool loadTitles) {
    SeriesCollection& all = look.chart.Plot.SeriesCollection;
    const Fields fields = SeriesLook().fields;
    const auto font = std::find_if(fields.begin(), fields.end(), [](const LookField& field) {
        return field.name == QLatin1String("SeriesLabelFontName");
    });
    const auto beforeFont = static_cast<std::size_t>(font - fields.begin());
    for (int series = 1; series <= all.Count(); ++series) {
        if (!reader.Find(SeriesLook(), series)) continue;
        const LookPart part{look, series};
        ReadFields(reader, SeriesLook(), fields.first(beforeFont), part, loadTitles);
        DataPoint& points = all(series).DataPoints.Item(DataPoints::All);
        // A look keeps no colour for them: statistics lines are drawn in their series' own, as when edited.
        all(series).StatLine.VtColor = points.Brush.FillColor;
        // Nor formats: they are of the data that the chart has now. They stand even where a font fails.
        points.DataPointLabel.PercentFormat = QStringLiteral("0.0%");
        points.DataPointLabel.ValueFormat = ValueLabelFormat();
        ReadFields(reader, SeriesLook(), fields.subspan(beforeFont), part, loadTitles);
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

#include "chart/ValueLabelFormat.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/Look.h"
#include "config/Viewer.h"

#include <array>

namespace QmChart6 {

namespace {

// The whole chart's fields in the order that they are applied in: an option that spreads over many parts of
// the chart goes before what may differ from part to part. Columns, series and axes come between these lists.

constexpr std::array WindowAndOptions{"ChartHeight",  "ChartWidth",     "ChartMaximized", "chartType",
                                      "BackColorRed", "BackColorGreen", "BackColorBlue",  "Flipped",
                                      "Stacked",      "FullStacked",    "PieLabelPos",    "Lines",
                                      "Markers"};
constexpr std::array View{"Rotation", "Elevation", "Projection"};
constexpr std::array TitleTexts{"TitleText"};
constexpr std::array TitleAndLegend{"TitleOrientation",    "TitleHorzAlignment",
                                    "TitleVertAlignment",  "TitleFontName",
                                    "TitleFontSize",       "TitleFontStyle",
                                    "TitleFontEffect",     "TitleFontColorRed",
                                    "TitleFontColorGreen", "TitleFontColorBlue",
                                    "LegendFontName",      "LegendFontSize",
                                    "LegendFontStyle",     "LegendFontEffect",
                                    "LegendFontColorRed",  "LegendFontColorGreen",
                                    "LegendFontColorBlue", "Legend",
                                    "ControlBar"};
constexpr std::array Places{"PlotMinX",           "PlotMinY",   "PlotMaxX",   "PlotMaxY",   "PlotAutoLayout",
                            "TitleLocationType",  "TitleMinX",  "TitleMinY",  "TitleMaxX",  "TitleMaxY",
                            "LegendLocationType", "LegendMinX", "LegendMinY", "LegendMaxX", "LegendMaxY"};

void Read(LookReader& reader, const LookTable& table, const LookField& field, const LookPart& part) {
    if (const std::optional<FieldValue> value = reader.Value(table, field)) field.set(part, *value);
}

template<std::size_t Count>
void Read(LookReader& reader, Viewer& viewer, const std::array<const char*, Count>& names) {
    for (const char* name : names)
        Read(reader, ChartLook(), ChartLook().Field(QLatin1String(name)), {.viewer = viewer});
}

/// Reads a record where there is one, but for the fields that are left out.
bool ReadRecord(LookReader& reader, const LookTable& table, const LookPart& part, const char* leftOut = "") {
    if (!reader.Find(table, part.number)) return false;
    for (const LookField& field : table.fields)
        if (field.name != QLatin1String(leftOut)) Read(reader, table, field, part);
    return true;
}

void ReadColumns(LookReader& reader, Viewer& viewer) {
    const Chart& chart = viewer.ChartImage().Model();
    for (int column = 1; column <= chart.ColumnCount(); ++column)
        ReadRecord(reader, ColumnsLook(), {viewer, column});
}

void ReadSeries(LookReader& reader, Viewer& viewer) {
    SeriesCollection& all = viewer.ChartImage().Model().Plot.SeriesCollection;
    for (int series = 1; series <= all.Count(); ++series) {
        if (!ReadRecord(reader, SeriesLook(), {viewer, series})) continue;
        DataPoint& points = all(series).DataPoints.Item(DataPoints::All);
        // A look keeps no colour for them: statistics lines are drawn in their series' own, as when edited.
        all(series).StatLine.VtColor = points.Brush.FillColor;
        DataPointLabel& label = points.DataPointLabel;
        label.PercentFormat = QStringLiteral("0.0%");
        label.ValueFormat = ValueLabelFormat();
    }
}

void ReadAxes(LookReader& reader, Viewer& viewer, bool loadTitles) {
    for (int axis = 0; axis <= static_cast<int>(AxisId::Z); ++axis)
        ReadRecord(reader, AxesLook(), {viewer, axis}, loadTitles ? "" : "AxisTitleText");
}

} // namespace

bool ApplyLook(Viewer& viewer, LookReader& reader, bool loadTitles) {
    if (!reader.Find(ChartLook(), 0)) return false;
    Read(reader, viewer, WindowAndOptions);
    if (loadTitles) ReadColumns(reader, viewer);
    Read(reader, viewer, View);
    ReadSeries(reader, viewer);
    ReadAxes(reader, viewer, loadTitles);
    if (loadTitles) Read(reader, viewer, TitleTexts);
    Read(reader, viewer, TitleAndLegend);
    Read(reader, viewer, Places);
    return true;
}

} // namespace QmChart6

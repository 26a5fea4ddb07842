#include "chartcontrol/widget/ChartControl.h"
#include "config/Look.h"
#include "config/Viewer.h"

namespace QmChart6 {

namespace {

void Write(LookWriter& writer, const LookTable& table, const LookField& field, const LookPart& part) {
    writer.Set(table, field, field.get(part));
}

/// The stored size is always that of the normal window.
void WriteWindow(LookWriter& writer, const LookPart& part) {
    const LookTable& table = ChartLook();
    const LookField& maximized = table.Field(QStringLiteral("ChartMaximized"));
    const bool restores = std::get<bool>(maximized.get(part));
    Write(writer, table, maximized, part);
    if (restores) part.viewer.SetWindowState(0);
    for (const char* size : {"ChartHeight", "ChartWidth"})
        Write(writer, table, table.Field(QLatin1String(size)), part);
    if (restores) part.viewer.SetWindowState(2);
}

void WriteRecord(LookWriter& writer, const LookTable& table, const LookPart& part) {
    writer.Start(table, part.number);
    for (const LookField& field : table.fields) Write(writer, table, field, part);
    writer.Finish(table);
}

} // namespace

void CaptureLook(Viewer& viewer, LookWriter& writer) {
    const LookTable& table = ChartLook();
    const LookPart whole{.viewer = viewer};
    writer.Start(table, 0);
    WriteWindow(writer, whole);
    for (const LookField& field : table.fields) {
        if (field.name != QLatin1String("ChartMaximized") && field.name != QLatin1String("ChartHeight") &&
            field.name != QLatin1String("ChartWidth"))
            Write(writer, table, field, whole);
    }
    writer.Finish(table);

    const Chart& chart = viewer.ChartImage().Model();
    for (int column = 1; column <= chart.ColumnCount(); ++column)
        WriteRecord(writer, ColumnsLook(), {viewer, column});
    for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series)
        WriteRecord(writer, SeriesLook(), {viewer, series});
    for (int axis = 0; axis <= static_cast<int>(AxisId::Z); ++axis)
        WriteRecord(writer, AxesLook(), {viewer, axis});
}

} // namespace QmChart6

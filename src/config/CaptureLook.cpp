#include "config/Look.h"
#include "config/LookExtrasState.h"

namespace QmChart6 {

namespace {

void WriteRecord(LookWriter& writer, const LookTable& table, const LookPart& part) {
    writer.Start(table, part.number);
    for (const LookField& field : table.fields) writer.Set(table, field, field.get(part));
    writer.Finish(table);
}

} // namespace

void CaptureLook(LookState look, LookWriter& writer) {
    WriteRecord(writer, ChartLook(), {.look = look});
    for (int column = 1; column <= look.chart.ColumnCount(); ++column)
        WriteRecord(writer, ColumnsLook(), {look, column});
    for (int series = 1; series <= look.chart.Plot.SeriesCollection.Count(); ++series)
        WriteRecord(writer, SeriesLook(), {look, series});
    for (int axis = 0; axis <= static_cast<int>(AxisId::Z); ++axis)
        WriteRecord(writer, AxesLook(), {look, axis});
    writer.SetExtras(CaptureExtras(look));
}

} // namespace QmChart6

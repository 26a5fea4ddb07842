#include "chartcontrol/paint/TableText.h"

#include "base/NumberText.h"

#include <cmath>

namespace QmChart6 {

namespace {

QString Quoted(const QString& label) {
    const bool plain = !label.contains(QLatin1Char('\t')) && !label.contains(QLatin1Char('\n')) &&
                       !label.contains(QLatin1Char('\r')) && !label.contains(QLatin1Char('"'));
    if (plain) return label;
    QString inside = label;
    inside.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + inside + QLatin1Char('"');
}

} // namespace

QString TableText(const Chart& chart) {
    QString text;
    for (int column = 1; column <= chart.ColumnCount(); ++column)
        text += QLatin1Char('\t') + Quoted(chart.DataGrid.ColumnLabel(column));
    text += QLatin1Char('\n');
    for (int row = 1; row <= chart.RowCount(); ++row) {
        text += Quoted(chart.DataGrid.RowLabel(row));
        for (int column = 1; column <= chart.ColumnCount(); ++column) {
            const double value = chart.DataGrid.Value(row, column);
            text += QLatin1Char('\t');
            if (!std::isnan(value)) text += TextOfDouble(value);
        }
        text += QLatin1Char('\n');
    }
    return text;
}

} // namespace QmChart6

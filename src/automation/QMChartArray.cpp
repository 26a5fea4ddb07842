#include "qmchart6/QMChartArray.h"

#include "automation/GraphFlows.h"
#include "config/ConfigurationFolder.h"
#include "desktop/Application.h"

namespace QmChart6 {

void QMChartArray::SetQmChartConfigPath(const QString& value) {
    RequireFirstThread();
    SetConfigurationFolder(value);
}

std::int16_t QMChartArray::QmChNo() const {
    return static_cast<std::int16_t>(UseConfig::No);
}
std::int16_t QMChartArray::QmChNoTitles() const {
    return static_cast<std::int16_t>(UseConfig::NoTitles);
}
std::int16_t QMChartArray::QmChYes() const {
    return static_cast<std::int16_t>(UseConfig::Yes);
}

void QMChartArray::QmMakeGraph(const QString& GraphId, std::int16_t Rows, std::int16_t Columns,
                               const Variant& Data, const Array<QString>& RowLabels,
                               const Array<QString>& ColumnLabels, const QString& ChartTitle,
                               const QString& RowTitle, const QString& ColumnTitle, const QString& ValueTitle,
                               const Variant& Language, std::uint8_t UseConfig) {
    MakeGraph({GraphId, Rows, Columns, Data, RowLabels, ColumnLabels, ChartTitle, RowTitle, ColumnTitle,
               ValueTitle, static_cast<QmChart6::UseConfig>(UseConfig)},
              Language);
}

void QMChartArray::QmKillGraph(const QString& GraphId) {
    KillGraph(GraphId);
}

void QMChartArray::QmPrintGraph(const QString& GraphId, std::int16_t Rows, std::int16_t Columns,
                                const Variant& Data, const Array<QString>& RowLabels,
                                const Array<QString>& ColumnLabels, const QString& ChartTitle,
                                const QString& RowTitle, const QString& ColumnTitle,
                                const QString& ValueTitle, std::uint8_t UseConfig) {
    PrintGraph({GraphId, Rows, Columns, Data, RowLabels, ColumnLabels, ChartTitle, RowTitle, ColumnTitle,
                ValueTitle, static_cast<QmChart6::UseConfig>(UseConfig)});
}

void QMChartArray::QmSaveGraph(const QString& GraphId, std::int16_t Rows, std::int16_t Columns,
                               const Variant& Data, const Array<QString>& RowLabels,
                               const Array<QString>& ColumnLabels, const QString& ChartTitle,
                               const QString& RowTitle, const QString& ColumnTitle, const QString& ValueTitle,
                               std::uint8_t UseConfig, QString& FileName) {
    SaveGraph({GraphId, Rows, Columns, Data, RowLabels, ColumnLabels, ChartTitle, RowTitle, ColumnTitle,
               ValueTitle, static_cast<QmChart6::UseConfig>(UseConfig)},
              FileName);
}

void QMChartArray::QmSaveGraph(const QString& GraphId, std::int16_t Rows, std::int16_t Columns,
                               const Variant& Data, const Array<QString>& RowLabels,
                               const Array<QString>& ColumnLabels, const QString& ChartTitle,
                               const QString& RowTitle, const QString& ColumnTitle, const QString& ValueTitle,
                               std::uint8_t UseConfig) {
    QString askForName;
    QmSaveGraph(GraphId, Rows, Columns, Data, RowLabels, ColumnLabels, ChartTitle, RowTitle, ColumnTitle,
                ValueTitle, UseConfig, askForName);
}

void QMChartArray::QmMkGr(const QString& GraphId, const QString& /*ConfigId*/, std::int16_t Rows,
                          std::int16_t Columns, const Variant& Data, const Array<QString>& RowLabels,
                          const Array<QString>& ColumnLabels, const QString& ChartTitle,
                          const QString& ValueTitle, const QString& RowTitle) {
    // The number of "stored look" stands where the language goes, and hosts have come to rely on what that
    // gives: Spanish texts and the default look.
    QmMakeGraph(GraphId, Rows, Columns, Data, RowLabels, ColumnLabels, ChartTitle, RowTitle, QString(),
                ValueTitle, QmChYes(), static_cast<std::uint8_t>(QmChNo()));
}

} // namespace QmChart6

#include "qmchart6/QMChartArray.h"

#include "automation/GraphFlows.h"
#include "config/ConfigurationFolder.h"
#include "desktop/Application.h"

namespace QmChart6 {

namespace {

constexpr std::int16_t English = 0;
constexpr std::int16_t Portuguese = 1;
constexpr std::int16_t Spanish = 2;
constexpr std::int16_t Italian = 3;

} // namespace

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

std::int16_t QMChartArray::QmChEnglish() const {
    return English;
}
std::int16_t QMChartArray::QmChPortuguese() const {
    return Portuguese;
}
std::int16_t QMChartArray::QmChSpanish() const {
    return Spanish;
}
std::int16_t QMChartArray::QmChItalian() const {
    return Italian;
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

#include "qmchart6/Looks.h"

#include "automation/ChartSize.h"
#include "chart/DefaultLook.h"
#include "config/Catalogue.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/CopyLooks.h"
#include "config/LookJson.h"
#include "config/LookOverride.h"
#include "config/StoredLook.h"
#include "database/CreateDatabase.h"
#include "desktop/Application.h"

#include <algorithm>

namespace QmChart6 {

namespace {

/// Where a folder's looks are, ready to be asked: databases need an application.
QString StoreOf(const QString& folder) {
    EnsureAnyApplication();
    return ConfigurationFileName(folder);
}

void RequireLook(const QString& location, const QString& name) {
    if (!LookExists(location, name))
        throw RuntimeError(ErrorNumber::ResourceNotFound,
                           QStringLiteral("there is no look named \"%1\"").arg(name));
}

int GreatestNumber(const Look& look, const LookTable& table) {
    return look.Of(table).empty() ? 1 : look.Of(table).rbegin()->first;
}

bool HasSeriesInRows(Look& look) {
    if (!look.Find(ChartLook(), 0)) return false;
    const auto flipped = look.Value(ChartLook(), ChartLook().Field(QStringLiteral("Flipped")));
    return flipped && std::get<bool>(*flipped);
}

/// Gives the chart as many series and columns as the look has, and no more cells than that takes. Raises 380
/// where that is more than a table can reasonably be.
void SizeFor(Look& look, Chart& chart) {
    constexpr int MostCells = 4'000'000;
    const int series = GreatestNumber(look, SeriesLook());
    const int columns = GreatestNumber(look, ColumnsLook());
    const bool inRows = HasSeriesInRows(look);
    if (inRows && series > MostCells / columns)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue,
                           QStringLiteral("a look of %1 columns and %2 series in rows is too large")
                               .arg(columns)
                               .arg(series));
    chart.SetGridSize(inRows ? series : 1, inRows ? columns : std::max(series, columns));
}

/// The look with all of its fields: those left out are as a chart has them that is given the others. Raises
/// what the chart raises.
Look Complete(Look look) {
    LookState state;
    SizeFor(look, state.chart);
    ApplyDefaultLook(state.chart);
    ApplyLook(state, look, true);
    Look complete;
    CaptureLook(state, complete);
    for (const LookTable* table : {&ColumnsLook(), &SeriesLook()})
        std::erase_if(complete.Of(*table),
                      [&](const auto& record) { return !look.Of(*table).contains(record.first); });
    return complete;
}

Look ReadStored(const QString& location, const QString& name) {
    Database database(location, ConfigurationSchema());
    const Database::Reading reading(database);
    return ReadLook(database, name);
}

} // namespace

void CreateLookStore(const QString& folder) {
    CreateDatabase(StoreOf(folder), ConfigurationSchema());
}

bool UpgradeLookStore(const QString& folder) {
    return AddTable(StoreOf(folder), ConfigurationSchema(), QLatin1String(ExtrasTable));
}

QStringList LookNames(const QString& folder) {
    QStringList names;
    ListLooks(StoreOf(folder), names);
    return names;
}

void DeleteStoredLook(const QString& folder, const QString& name) {
    const QString location = StoreOf(folder);
    RequireLook(location, name);
    DeleteLook(location, name);
}

QList<GraphBinding> GraphBindings(const QString& folder) {
    QList<GraphBinding> bindings;
    for (const LookBinding& binding : LookBindings(StoreOf(folder)))
        bindings.append({binding.graphId, binding.name});
    return bindings;
}

void BindGraph(const QString& folder, const QString& graphId, const QString& name) {
    const QString location = StoreOf(folder);
    RequireLook(location, name);
    BindLook(location, graphId.trimmed().toUpper(), name);
}

QByteArray ExportLook(const QString& folder, const QString& name) {
    const QString location = StoreOf(folder);
    RequireLook(location, name);
    return WriteLookJson({name, ReadStored(location, name)});
}

QString ImportLook(const QString& folder, const QByteArray& look, const QString& name, int* valuesNotKept) {
    RequireFirstThread();
    const NamedLook named = ReadLookJson(look);
    QString kept = name.isEmpty() ? named.name : name;
    if (kept.isEmpty())
        throw RuntimeError(ErrorNumber::InvalidFileFormat,
                           QStringLiteral("the look has no name; give it one, or a field \"%1\"")
                               .arg(QLatin1String(LookNameField)));
    const Look complete = Complete(named.look);
    Database database(StoreOf(folder), ConfigurationSchema());
    const int notKept = WriteWholeLook(database, kept, complete);
    if (valuesNotKept != nullptr) *valuesNotKept = notKept;
    return kept;
}

CopiedStore CopyLookStore(const QString& from, const QString& to) {
    const CopiedLooks copied = CopyLooks(StoreOf(from), StoreOf(to));
    CopiedStore told{copied.looks, copied.bindings, copied.valuesNotKept, {}};
    for (const LookLeftOut& one : copied.leftOut) told.LeftOut.append({one.name, one.reason});
    return told;
}

void CheckLook(const QByteArray& look) {
    RequireFirstThread();
    (void)Complete(ReadLookJson(look).look);
}

void UseLook(const QString& graphId, const QByteArray& look) {
    RequireFirstThread();
    const NamedLook named = ReadLookJson(look);
    (void)Complete(named.look); // what means nothing is told here, not in the middle of a chart
    SetLookOverride(graphId, named.look);
}

void SetChartSize(int width, int height, int pixelsPerInch) {
    constexpr int Largest = 16384;
    constexpr int LeastPixelsPerInch = 24;
    constexpr int MostPixelsPerInch = 2400;
    const bool none = width == 0 && height == 0;
    if (!none && (width < 1 || height < 1 || width > Largest || height > Largest))
        throw RuntimeError(ErrorNumber::InvalidPropertyValue,
                           QStringLiteral("a chart is from 1 to %1 pixels wide and high, not %2 by %3")
                               .arg(Largest)
                               .arg(width)
                               .arg(height));
    if (pixelsPerInch < LeastPixelsPerInch || pixelsPerInch > MostPixelsPerInch)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue,
                           QStringLiteral("a picture has %1 to %2 pixels to an inch, not %3")
                               .arg(LeastPixelsPerInch)
                               .arg(MostPixelsPerInch)
                               .arg(pixelsPerInch));
    SetSizeOfNewCharts(none ? std::nullopt : std::optional(QSize(width, height)), pixelsPerInch);
}

} // namespace QmChart6

#include "qmchart/ChosenLook.h"

#include "qmchart/BuiltInLooks.h"
#include "qmchart/FittedLook.h"
#include "qmchart/InputText.h"

#include "qmchart6/Looks.h"
#include "qmchart6/QMChartArray.h"

#include <QFileInfo>
#include <QJsonDocument>

namespace QmChart6 {

namespace {

constexpr QLatin1String Plain("plain");
constexpr QLatin1String Calm("calm");
constexpr QLatin1String Dark("dark");

std::uint8_t NoTitles() {
    return static_cast<std::uint8_t>(QMChartArray().QmChNoTitles());
}
std::uint8_t WithTitles() {
    return static_cast<std::uint8_t>(QMChartArray().QmChYes());
}

/// A file where there is one, a stored look, one that comes with the program.
QByteArray NamedLook(const CommandLine& line, const QString& name) {
    if (QFileInfo(name).isFile() || name.endsWith(QLatin1String(".json"), Qt::CaseInsensitive))
        return ReadInput(name);
    const std::optional<QByteArray> builtIn = BuiltInLook(name);
    if (line.configFolder && (!builtIn || LookNames(*line.configFolder).contains(name, Qt::CaseInsensitive)))
        return ExportLook(*line.configFolder, name);
    if (!builtIn)
        throw UsageError(
            QStringLiteral("there is no look \"%1\": \"qmchart looks\" lists those that there are, a "
                           "stored one needs --config FOLDER")
                .arg(name));
    return *builtIn;
}

/// The name of the look that the store binds to the graph id.
std::optional<QString> BoundName(const QString& folder, const QString& graphId) {
    for (const GraphBinding& binding : GraphBindings(folder))
        if (binding.GraphId == graphId.trimmed().toUpper()) return binding.Name;
    return std::nullopt;
}

/// Raises what loading the look that is bound to a chart would raise.
void RequireBoundLook(const QString& folder, const QString& graphId) {
    const std::optional<QString> bound = BoundName(folder, graphId);
    // One that was deleted behind the binding gives the default look.
    if (bound && LookNames(folder).contains(*bound, Qt::CaseInsensitive))
        CheckLook(ExportLook(folder, *bound));
}

/// Names the axes by the table where nobody named them: those of an XY chart are two of its columns.
void NameAxes(ChosenLook& chosen, QJsonObject& look, const CommandLine& line, const Table& table) {
    if (MakesXYChart(look)) {
        if (!line.rowTitle) chosen.rowTitle = ColumnName(table, 1);
        if (chosen.valueTitle.isEmpty()) chosen.valueTitle = ColumnName(table, 2);
    } else if (chosen.valueTitle.isEmpty() && chosen.useConfig == NoTitles() && NameValueAxes(look, table)) {
        chosen.useConfig = WithTitles();
    }
}

/// What completes a look that says little: the calm one, or its like for a dark ground.
QJsonObject BaseOf(const QJsonObject& look) {
    const std::optional<QByteArray> base = BuiltInLook(HasDarkGround(look) ? Dark : Calm);
    return QJsonDocument::fromJson(base.value_or(QByteArray())).object();
}

/// A look of a file that says little, completed; others as they are.
QByteArray Completed(const QByteArray& look) {
    const QJsonDocument document = QJsonDocument::fromJson(look);
    if (!document.isObject() || !IsSketch(document.object())) return look;
    return QJsonDocument(CompletedBy(document.object(), BaseOf(document.object()))).toJson();
}

/// The look that is named, or bound to the graph id, or the calm one; nothing where the component's own is
/// asked for.
std::optional<QByteArray> FindLook(const CommandLine& line, const QString& graphId) {
    if (line.look)
        return *line.look == Plain ? std::nullopt : std::optional(Completed(NamedLook(line, *line.look)));
    if (line.useConfigGiven && line.useConfig == 0) return std::nullopt;
    if (line.configFolder)
        if (const std::optional<QString> bound = BoundName(*line.configFolder, graphId))
            return ExportLook(*line.configFolder, *bound);
    return line.useConfigGiven ? std::nullopt : BuiltInLook(Calm);
}

/// The look as an object that can be changed. What is none is left for whoever reads looks, who tells why.
void Adapt(ChosenLook& chosen, const CommandLine& line, const Table& table) {
    const QJsonDocument document = QJsonDocument::fromJson(*chosen.look);
    if (!document.isObject()) return;
    QJsonObject look = document.object();
    if (line.chartType) SetKind(look, *line.chartType);
    FitToTable(look, table);
    NameAxes(chosen, look, line, table);
    chosen.look = QJsonDocument(look).toJson();
}

/// A stored look is the component's own matter, unless another kind of chart is asked for.
bool LoadsByItself(const CommandLine& line) {
    return !line.look && line.useConfigGiven && line.useConfig != 0 && !line.chartType;
}

} // namespace

ChosenLook ChooseLook(const CommandLine& line, const QString& graphId, const Table& table) {
    ChosenLook chosen{.useConfig = line.useConfig,
                      .look = {},
                      .rowTitle = line.rowTitle.value_or(table.rowTitle),
                      .valueTitle = line.valueTitle};
    if (LoadsByItself(line)) {
        // In a window the troubles of a store are told and the chart is shown. A picture, which nobody may
        // look at for a long time, is made as it was asked for or not at all.
        if (line.command != Command::Show) RequireBoundLook(line.configFolder.value_or(QString()), graphId);
        if (chosen.valueTitle.isEmpty()) chosen.valueTitle = table.unit;
        return chosen;
    }
    chosen.look = FindLook(line, graphId);
    if (!chosen.look && line.chartType) chosen.look = QByteArrayLiteral("{}");
    chosen.useConfig = !chosen.look                                 ? 0
                       : line.useConfigGiven && line.useConfig != 0 ? line.useConfig
                                                                    : NoTitles();
    if (chosen.look) Adapt(chosen, line, table);
    if (chosen.valueTitle.isEmpty()) chosen.valueTitle = table.unit;
    return chosen;
}

} // namespace QmChart6

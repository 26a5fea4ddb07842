#pragma once

#include <QString>
#include <QStringList>

namespace QmChart6 {

class Viewer;

// The configuration database's procedures: looks by their names, and which look a chart is bound to. Each
// opens the database of ConfigurationFileName() and closes it before it returns. An error ends the procedure
// at once and is shown in a message box, "Error n: description"; what was written before stays. What a
// procedure wrote is on the disk when it returns, and others see it all at once.

/// Keeps the viewer's look under its QmConfig, and binds its chart to that name.
void SaveConfiguration(Viewer& viewer);

/// Gives the viewer the look of that name; the default look where there is none. `loadTitles`: the texts of
/// the titles and the names of the columns too.
void LoadConfiguration(Viewer& viewer, const QString& name, bool loadTitles);
/// The same with the look that the viewer's chart is bound to, which becomes its QmConfig.
void LoadChartConfiguration(Viewer& viewer, bool loadTitles);

/// Makes the name the viewer's QmConfig, and the look that its chart has from now on.
void BindChartToConfiguration(Viewer& viewer, const QString& name);

/// Deletes the look and every binding to it; an unknown name does nothing.
void DeleteConfiguration(const QString& name);

/// The names of all looks in key order, and which of them is `current`; -1 for none.
struct ConfigurationList {
    QStringList names;
    int selected = -1;
};
ConfigurationList FillConfigurationList(const QString& current);

[[nodiscard]] bool ConfigurationExists(const QString& name);

} // namespace QmChart6

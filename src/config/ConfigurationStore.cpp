#include "config/ConfigurationStore.h"

#include "chartcontrol/widget/ChartControl.h"
#include "config/Catalogue.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/LookOverride.h"
#include "config/StoredLook.h"
#include "config/Viewer.h"
#include "desktop/ShowErrors.h"
#include "text/LocalText.h"

#include <optional>

namespace QmChart6 {

namespace {

QWidget* OwnerOf(Viewer& viewer) {
    return viewer.ChartImage().window();
}

/// Binding has a message box of its own: where it fails, the look is saved all the same. Nobody waits for
/// that box with a database open, so the failure is handed over.
void Save(Viewer& viewer, std::optional<RuntimeError>& notBound) {
    Database database(ConfigurationFileName(), ConfigurationSchema());
    const QString name = viewer.QmConfig();
    StoredLook look(database, name);
    Database::Writing writing(database, QLatin1String(BindingsTable));
    try {
        BindLook(database, viewer.GraphId(), name);
    } catch (const RuntimeError& error) {
        notBound = error;
    }
    CaptureLook(viewer, look);
    writing.Finish();
}

/// False where there is no such look. Nothing runs events meanwhile: others wait for what is read.
bool Load(Viewer& viewer, const QString& name, bool loadTitles) {
    Database database(ConfigurationFileName(), ConfigurationSchema());
    StoredLook look(database, name);
    const Database::Reading reading(database);
    return ApplyLook(viewer, look, loadTitles);
}

} // namespace

void SaveConfiguration(Viewer& viewer) {
    std::optional<RuntimeError> notBound;
    std::optional<RuntimeError> notSaved;
    try {
        Save(viewer, notBound);
    } catch (const RuntimeError& error) {
        notSaved = error;
    }
    for (const std::optional<RuntimeError>* failure : {&notBound, &notSaved})
        if (*failure) ShowErrors(OwnerOf(viewer), [&] { throw RuntimeError(**failure); });
    if (!notSaved) viewer.SetStatus(LocalText(TextKey::ConfigurationSaved));
}

void LoadConfiguration(Viewer& viewer, const QString& name, bool loadTitles) {
    ShowErrors(OwnerOf(viewer), [&] {
        if (!Load(viewer, name, loadTitles)) ApplyDefaultLook(viewer);
    });
}

void LoadChartConfiguration(Viewer& viewer, bool loadTitles) {
    ShowErrors(OwnerOf(viewer), [&] {
        if (ApplyLookOverride(viewer, loadTitles)) return;
        const std::optional<QString> name = BoundLook(ConfigurationFileName(), viewer.GraphId());
        if (!name) {
            ApplyDefaultLook(viewer);
            return;
        }
        viewer.SetQmConfig(*name);
        LoadConfiguration(viewer, *name, loadTitles);
    });
}

void BindChartToConfiguration(Viewer& viewer, const QString& name) {
    ShowErrors(OwnerOf(viewer), [&] {
        viewer.SetQmConfig(name);
        BindLook(ConfigurationFileName(), viewer.GraphId(), viewer.QmConfig());
    });
}

void DeleteConfiguration(const QString& name) {
    ShowErrors(nullptr, [&] { DeleteLook(ConfigurationFileName(), name); });
}

ConfigurationList FillConfigurationList(const QString& current) {
    ConfigurationList list;
    ShowErrors(nullptr, [&] { ListLooks(ConfigurationFileName(), list.names); });
    for (qsizetype i = 0; i < list.names.size(); ++i)
        if (EqualNames(list.names[i], current)) list.selected = static_cast<int>(i);
    return list;
}

bool ConfigurationExists(const QString& name) {
    bool exists = false;
    ShowErrors(nullptr, [&] { exists = LookExists(ConfigurationFileName(), name); });
    return exists;
}

} // namespace QmChart6

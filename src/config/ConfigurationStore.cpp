#include "config/ConfigurationStore.h"

#include "config/Catalogue.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/LookNames.h"
#include "config/LookOverride.h"
#include "config/StoredLook.h"
#include "config/Viewer.h"
#include "desktop/BusyCursor.h"
#include "desktop/ShowErrors.h"
#include "text/LocalText.h"
#include "text/Remarks.h"

#include <optional>

namespace QmChart6 {

namespace {

/// What keeping a look leaves in its chart: angles in degrees, and the last column as the current one.
LookState AsKept(LookState look) {
    look.chart.Plot.AngleUnit = AngleUnit::Degrees;
    if (look.chart.ColumnCount() > 0) look.chart.Column = look.chart.ColumnCount();
    return look;
}

/// Writes the size of a maximized window while the window has that size: it is restored before and maximized
/// again after, and stays restored where the size cannot be written.
class RestoringWriter : public LookWriter {
public:
    RestoringWriter(LookWriter& writer, Viewer& viewer) : writer_(writer), viewer_(viewer) {}

    void Start(const LookTable& table, int number) override { writer_.Start(table, number); }
    void Set(const LookTable& table, const LookField& field, const FieldValue& value) override {
        const bool isSize = field.step == Step::Size;
        if (isSize != restored_) SetMaximized(!isSize);
        writer_.Set(table, field, value);
    }
    void Finish(const LookTable& table) override { writer_.Finish(table); }
    void SetExtras(const Extras& extras) override { writer_.SetExtras(extras); }

private:
    void SetMaximized(bool maximized) {
        LookState look = viewer_.Look();
        look.maximized = maximized;
        viewer_.Show(look);
        restored_ = !maximized;
    }

    LookWriter& writer_;
    Viewer& viewer_;
    bool restored_ = false;
};

void Capture(Viewer& viewer, LookWriter& writer) {
    const LookState look = AsKept(viewer.Look());
    if (look.maximized) {
        RestoringWriter restored(writer, viewer);
        CaptureLook(look, restored);
    } else {
        CaptureLook(look, writer);
    }
    viewer.Show(look);
}

/// Binding has a message box of its own: where it fails, the look is saved all the same. Nobody waits for
/// that box with a database open, so the failure is handed over. Gives the number of values beyond the stored
/// fields that the store has no place for.
int Save(Viewer& viewer, std::optional<RuntimeError>& notBound) {
    const BusyCursor busy;
    Database database(ConfigurationFileName(), ConfigurationSchema());
    const QString name = viewer.QmConfig();
    StoredLook look(database, name);
    Database::Writing writing(database, TableOfTurns(database));
    try {
        BindLook(database, viewer.GraphId(), name);
    } catch (const RuntimeError& error) {
        notBound = error;
    }
    Capture(viewer, look);
    writing.Finish();
    return look.ValuesNotKept();
}

QString SavedText(int valuesNotKept) {
    const QString saved = LocalText(TextKey::ConfigurationSaved);
    if (valuesNotKept == 0) return saved;
    return saved + QStringLiteral(", ") +
           LocalRemark(
               QStringLiteral("but for %1 properties that this store has no place for").arg(valuesNotKept));
}

/// False where there is no such look. Nothing runs events meanwhile: others wait for what is read.
bool Load(Viewer& viewer, const QString& name, bool loadTitles) {
    const BusyCursor busy;
    Database database(ConfigurationFileName(), ConfigurationSchema());
    StoredLook look(database, name);
    const Database::Reading reading(database);
    return ShowLook(viewer, viewer.Look(), look, loadTitles);
}

} // namespace

void SaveConfiguration(Viewer& viewer) {
    std::optional<RuntimeError> notBound;
    std::optional<RuntimeError> notSaved;
    int valuesNotKept = 0;
    try {
        valuesNotKept = Save(viewer, notBound);
    } catch (const RuntimeError& error) {
        notSaved = error;
    }
    for (const std::optional<RuntimeError>* failure : {&notBound, &notSaved})
        if (*failure) ShowErrors(viewer.Window(), [&] { throw RuntimeError(**failure); });
    if (!notSaved) viewer.SetStatus(SavedText(valuesNotKept));
}

void LoadConfiguration(Viewer& viewer, const QString& name, bool loadTitles) {
    ShowErrors(viewer.Window(), [&] {
        if (!Load(viewer, name, loadTitles)) ApplyDefaultLook(viewer);
    });
}

void LoadChartConfiguration(Viewer& viewer, bool loadTitles) {
    ShowErrors(viewer.Window(), [&] {
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
    ShowErrors(viewer.Window(), [&] {
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

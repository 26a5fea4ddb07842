#include "StoreWork.h"

#include "Clock.h"
#include "Works.h"

#include "chart/DefaultLook.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/Catalogue.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/ConfigurationStore.h"
#include "config/LookFields.h"
#include "database/CreateDatabase.h"
#include "database/Database.h"
#include "viewer/GraphForm.h"

#include <QTemporaryDir>

#include <cstdlib>
#include <string>

namespace Bench {

namespace {

using namespace QmChart6;

constexpr int Runs = 50;
constexpr int Series = 32;
constexpr int Names = 10000;

/// A figure of a store that refuses is none.
void Require(bool done, const char* what) {
    if (done) return;
    std::fprintf(stderr, "%s failed\n", what);
    std::exit(1);
}

void AddNames(const QString& location) {
    Database database(location, ConfigurationSchema());
    Recordset looks = database.OpenRecordset(ChartLook().name);
    Database::Writing writing(database, ChartLook().name);
    for (int i = 0; i < Names; ++i) {
        looks.AddNew();
        looks.SetValue(QLatin1String(LookNameField), QStringLiteral("Quarterly sales %1").arg(i));
        looks.Update();
    }
    writing.Finish();
}

void Measure(const std::string& engine, const QString& folder) {
    SetConfigurationFolder(folder);
    const QString location = ConfigurationFileName();
    CreateDatabase(location, ConfigurationSchema());
    GraphForm form;
    Chart& chart = form.ChartImage().Model();
    chart = SmallChart(Small(12, Series), ChartType::Line2D);
    ApplyDefaultLook(chart);
    const QString name = QStringLiteral("Measured");
    form.SetGraphId(QStringLiteral("MEASURED"));
    form.SetQmConfig(name);
    Report("default", (engine + "_first_save_ms").c_str(), Once([&] { SaveConfiguration(form); }));
    Require(LookExists(location, name), "saving");
    Report("default", (engine + "_save_ms").c_str(), Median(Runs, [&] { SaveConfiguration(form); }));
    Report("default", (engine + "_load_ms").c_str(),
           Median(Runs, [&] { LoadConfiguration(form, name, true); }));
    AddNames(location);
    qsizetype listed = 0;
    Report("default", (engine + "_list_ms").c_str(),
           Median(Runs / 5, [&] { listed = FillConfigurationList(name).names.size(); }));
    Require(listed == Names + 1, "listing");
}

} // namespace

void StoreWork(const QString& server) {
    const QTemporaryDir files;
    Require(files.isValid(), "making a folder");
    Measure("file", files.path() + u'/');
    if (!server.isEmpty()) Measure("server", server);
}

} // namespace Bench

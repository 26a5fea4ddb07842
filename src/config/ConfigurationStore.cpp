#include "config/ConfigurationStore.h"

#include "chartcontrol/widget/ChartControl.h"
#include "config/Viewer.h"
#include "desktop/Desktop.h"
#include "qmchart6/RuntimeError.h"

namespace QmChart6 {

namespace {

ConfigurationStore* installedStore = nullptr;

void TellThatThereIsNoStore(Viewer& viewer) {
    const RuntimeError error(ErrorNumber::ActionNotSupported,
                             QStringLiteral("this build keeps no stored looks"));
    CurrentDesktop().ShowMessage(viewer.ChartImage().window(), error.Message(), QString(),
                                 MessageButtons::Ok);
}

} // namespace

void InstallConfigurationStore(ConfigurationStore* store) {
    installedStore = store;
}

void SaveConfiguration(Viewer& viewer) {
    if (installedStore != nullptr)
        installedStore->SaveConfiguration(viewer);
    else
        TellThatThereIsNoStore(viewer);
}

void LoadChartConfiguration(Viewer& viewer, bool loadTitles) {
    if (installedStore != nullptr) {
        installedStore->LoadChartConfiguration(viewer, loadTitles);
    } else {
        TellThatThereIsNoStore(viewer);
        ApplyDefaultLook(viewer);
    }
}

} // namespace QmChart6

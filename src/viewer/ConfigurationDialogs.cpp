#include "viewer/ConfigurationDialogs.h"

namespace QmChart6 {

namespace {

ConfigurationDialogs& Installed() {
    static ConfigurationDialogs dialogs;
    return dialogs;
}

} // namespace

const ConfigurationDialogs& CurrentConfigurationDialogs() {
    return Installed();
}

void InstallConfigurationDialogs(const ConfigurationDialogs& dialogs) {
    Installed() = dialogs;
}

} // namespace QmChart6

#pragma once

namespace QmChart6 {

class Viewer;

/// What a viewer opens to pick a stored look, and to name the look that is to be stored. Both return when the
/// person is done. A viewer made while one of them is not there has that command disabled.
struct ConfigurationDialogs {
    void (*load)(Viewer& viewer) = nullptr;
    void (*saveAs)(Viewer& viewer) = nullptr;
};

/// The process' dialogs.
const ConfigurationDialogs& CurrentConfigurationDialogs();
void InstallConfigurationDialogs(const ConfigurationDialogs& dialogs);

} // namespace QmChart6

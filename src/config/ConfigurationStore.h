#pragma once

namespace QmChart6 {

class Viewer;

/// Where looks are kept. Failures are shown by the store itself, in a message box; nothing is raised.
class ConfigurationStore {
public:
    virtual ~ConfigurationStore() = default;

    /// Keeps the viewer's look under the name that it is bound to, and binds its chart to that name.
    virtual void SaveConfiguration(Viewer& viewer) = 0;

    /// Gives the viewer the look that its chart is bound to, or the default look where there is none.
    /// `loadTitles`: titles and column labels too.
    virtual void LoadChartConfiguration(Viewer& viewer, bool loadTitles) = 0;
};

/// The process' store; null takes it away. It must outlive its being installed.
void InstallConfigurationStore(ConfigurationStore* store);

// The store's operations. Where no store is installed a message box says so, and loading gives the default
// look, so that the chart is finished and seen.
void SaveConfiguration(Viewer& viewer);
void LoadChartConfiguration(Viewer& viewer, bool loadTitles);

} // namespace QmChart6

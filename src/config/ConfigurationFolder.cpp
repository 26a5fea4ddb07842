#include "config/ConfigurationFolder.h"

#include "base/ProcessState.h"

namespace QmChart6 {

const QString& ConfigurationFolder() {
    return Process().configurationFolder;
}

void SetConfigurationFolder(const QString& folder) {
    Process().configurationFolder = folder;
}

QString ConfigurationFileName(const QString& folder) {
    return folder + QStringLiteral("QmConfig.mdb");
}

} // namespace QmChart6

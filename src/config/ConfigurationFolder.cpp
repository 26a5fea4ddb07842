#include "config/ConfigurationFolder.h"

namespace QmChart6 {

namespace {

QString& Folder() {
    static QString folder;
    return folder;
}

} // namespace

const QString& ConfigurationFolder() {
    return Folder();
}

void SetConfigurationFolder(const QString& folder) {
    Folder() = folder;
}

QString ConfigurationFileName(const QString& folder) {
    return folder + QStringLiteral("QmConfig.mdb");
}

} // namespace QmChart6

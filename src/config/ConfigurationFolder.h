#pragma once

#include <QString>

namespace QmChart6 {

/// The process' configuration folder, as the host gave it; "" until then.
const QString& ConfigurationFolder();
void SetConfigurationFolder(const QString& folder);

/// The configuration database: the folder's text with "QmConfig.mdb" right behind it, no separator between.
QString ConfigurationFileName();

} // namespace QmChart6

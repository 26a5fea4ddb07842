#pragma once

#include <QString>

namespace QmChart6 {

/// The process' configuration folder, as the host gave it; "" until then.
const QString& ConfigurationFolder();
void SetConfigurationFolder(const QString& folder);

/// A configuration database: the folder's text with "QmConfig.mdb" right behind it, no separator between. A
/// folder may be "postgresql://user@host:port/database/" too.
QString ConfigurationFileName(const QString& folder = ConfigurationFolder());

} // namespace QmChart6

#pragma once

#include <QString>

namespace QmChart6 {

/// The printer that the host set; "" for none.
const QString& HostPrinter();

} // namespace QmChart6

#pragma once

#include <QString>

namespace QmChart6 {

/// Whether two names are the same key.
[[nodiscard]] bool EqualNames(const QString& a, const QString& b);

} // namespace QmChart6

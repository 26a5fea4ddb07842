#pragma once

#include <QString>

namespace QmChart6 {

/// Whether two names are the same key.
[[nodiscard]] bool EqualNames(const QString& a, const QString& b);
/// What names that are the same key have in common.
[[nodiscard]] QString FoldedName(QString name);

} // namespace QmChart6

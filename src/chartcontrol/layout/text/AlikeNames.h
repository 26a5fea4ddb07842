#pragma once

#include <QStringList>

namespace QmChart6 {

/// Names without the words that all of them begin and end with; "…" stands for what is left out. They are
/// what they were where nothing is common or where a name would be lost whole.
QStringList WithoutCommonEnds(const QStringList& names);

} // namespace QmChart6

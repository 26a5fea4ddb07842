#pragma once

#include <QString>

namespace QmChart6 {

/// A sentence that layout says in English, in the process' language; itself where nobody has translated it,
/// or the language has no texts.
QString LocalRemark(const QString& english);

} // namespace QmChart6

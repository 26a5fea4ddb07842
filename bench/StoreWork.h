#pragma once

#include <QString>

namespace Bench {

/// Work S: saves and loads a look of 32 series, and lists 10,000 names, in a file of its own and, where a
/// server is given as "postgresql://user@host:port/database/", in an empty database there.
void StoreWork(const QString& server);

} // namespace Bench

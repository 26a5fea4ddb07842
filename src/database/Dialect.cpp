#include "database/Dialect.h"

namespace QmChart6 {

QString Quoted(const QString& name) {
    QString escaped = name;
    return u'"' + escaped.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

} // namespace QmChart6

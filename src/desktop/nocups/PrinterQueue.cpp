#include "desktop/PrinterQueue.h"

namespace QmChart6 {

QString QueueProblem(const QString& /*printer*/) {
    return {};
}

std::function<QString()> WatchQueue(const QString& /*printer*/) {
    return [] { return QString(); };
}

} // namespace QmChart6

#pragma once

#include <QString>

#include <functional>

namespace QmChart6 {

// What the printing system tells about its queues; Qt hands a page over and asks no further. Where there is
// no such system to ask, all is well.

/// Why the printer of that name would not print now, as a sentence; "" where it would.
QString QueueProblem(const QString& printer);

/// Called before a page is printed. What it gives is called right after, on the same thread: that waits until
/// the page is printed, for at most two seconds, and tells why it never will be; "" where it is or may be
/// yet.
std::function<QString()> WatchQueue(const QString& printer);

} // namespace QmChart6

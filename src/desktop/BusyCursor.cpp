#include "desktop/BusyCursor.h"

#include <QGuiApplication>

namespace QmChart6 {

// A host that shows nothing may have an application without a cursor, or none.
BusyCursor::BusyCursor() : shown_(qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
    if (shown_) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

BusyCursor::~BusyCursor() {
    if (shown_) QGuiApplication::restoreOverrideCursor();
}

} // namespace QmChart6

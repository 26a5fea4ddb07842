#include "desktop/CurrentDesktop.h"

#include "base/ProcessState.h"
#include "desktop/Application.h"
#include "desktop/HeadlessDesktop.h"
#include "desktop/QtDesktop.h"

#include <QPrinter>

#include <utility>

namespace QmChart6 {

Desktop& CurrentDesktop() {
    if (Process().desktop != nullptr) return *Process().desktop;
    static QtDesktop peopled;
    static HeadlessDesktop unattended;
    if (RunsOnADisplay()) return peopled;
    return unattended;
}

ScopedDesktop::ScopedDesktop(Desktop& desktop) : before_(std::exchange(Process().desktop, &desktop)) {}

ScopedDesktop::~ScopedDesktop() {
    Process().desktop = before_;
}

} // namespace QmChart6

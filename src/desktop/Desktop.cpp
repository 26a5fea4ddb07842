#include "desktop/Desktop.h"

#include "desktop/Application.h"
#include "desktop/HeadlessDesktop.h"
#include "desktop/QtDesktop.h"

#include <QPrinter>

#include <utility>

namespace QmChart6 {

namespace {

Desktop* installedDesktop = nullptr;

} // namespace

Desktop& CurrentDesktop() {
    if (installedDesktop != nullptr) return *installedDesktop;
    static QtDesktop peopled;
    static HeadlessDesktop unattended;
    if (RunsOnADisplay()) return peopled;
    return unattended;
}

ScopedDesktop::ScopedDesktop(Desktop& desktop) : before_(std::exchange(installedDesktop, &desktop)) {}

ScopedDesktop::~ScopedDesktop() {
    installedDesktop = before_;
}

} // namespace QmChart6

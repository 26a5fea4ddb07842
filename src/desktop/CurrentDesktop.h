#pragma once

#include "desktop/Desktop.h"

namespace QmChart6 {

/// The process' desktop: a person's where there is a display, otherwise one that answers by itself.
Desktop& CurrentDesktop();

/// Puts another desktop in place for as long as it lives.
class ScopedDesktop {
public:
    explicit ScopedDesktop(Desktop& desktop);
    ~ScopedDesktop();
    ScopedDesktop(const ScopedDesktop&) = delete;
    ScopedDesktop& operator=(const ScopedDesktop&) = delete;

private:
    Desktop* before_;
};

} // namespace QmChart6

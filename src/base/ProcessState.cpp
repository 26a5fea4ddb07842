#include "base/ProcessState.h"

#include <utility>

namespace QmChart6 {

ProcessState& Process() {
    static auto* state = new ProcessState; // NOLINT(cppcoreguidelines-owning-memory)
    return *state;
}

void ResetProcess() {
    ProcessState anew;
    anew.desktop = Process().desktop;
    // Viewers go once nobody finds them any more.
    const ProcessState before = std::exchange(Process(), std::move(anew));
}

} // namespace QmChart6

#include "config/LookOverride.h"

#include "base/ProcessState.h"
#include "chart/DefaultLook.h"
#include "config/Viewer.h"

#include <utility>

namespace QmChart6 {

void SetLookOverride(const QString& graphId, const std::optional<Look>& look) {
    const QString key = graphId.trimmed().toUpper();
    if (look)
        Process().lookOverrides.insert_or_assign(key, std::make_shared<const Look>(*look));
    else
        Process().lookOverrides.erase(key);
}

bool ApplyLookOverride(Viewer& viewer, bool loadTitles) {
    const auto& overrides = Process().lookOverrides;
    const auto found = overrides.find(viewer.GraphId());
    if (found == overrides.end()) return false;
    LookState look = viewer.Look();
    ApplyDefaultLook(look.chart);
    Look read = *found->second;
    return ShowLook(viewer, std::move(look), read, loadTitles);
}

} // namespace QmChart6

#include "config/LookOverride.h"

#include "chart/DefaultLook.h"
#include "config/Viewer.h"

#include <utility>

namespace QmChart6 {

namespace {

std::map<QString, Look>& Overrides() {
    static std::map<QString, Look> overrides;
    return overrides;
}

} // namespace

void SetLookOverride(const QString& graphId, const std::optional<Look>& look) {
    const QString key = graphId.trimmed().toUpper();
    if (look)
        Overrides().insert_or_assign(key, *look);
    else
        Overrides().erase(key);
}

bool ApplyLookOverride(Viewer& viewer, bool loadTitles) {
    const auto found = Overrides().find(viewer.GraphId());
    if (found == Overrides().end()) return false;
    LookState look = viewer.Look();
    ApplyDefaultLook(look.chart);
    Look read = found->second;
    return ShowLook(viewer, std::move(look), read, loadTitles);
}

} // namespace QmChart6

#pragma once

#include "chartcontrol/layout/Layout.h"
#include "chartcontrol/scene/SceneBuilder.h"

namespace QmChart6 {

/// What every part of the layout works with.
struct LayoutContext {
    const Chart& chart;
    const LayoutRequest& request;
    const TextMeasurer& measurer;
    SceneBuilder& builder;
};

} // namespace QmChart6

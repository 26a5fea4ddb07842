#pragma once

#include "config/LookExtras.h"

#include <cstdint>

namespace QmChart6 {

class ChartControl;

/// What a person sees of a viewer's look and works on: the chart in its control, the states of the options
/// that a chart does not keep (0 off, any other number on), and whether the look changed since it was kept.
struct ShownLook {
    ChartControl& chart;
    std::int16_t lines = 1;
    std::int16_t markers = 0;
    std::int16_t stacked = 0;
    std::int16_t fullStacked = 0;
    Extras extras = {}; ///< what its look said beyond the stored fields
    bool modified = false;
};

} // namespace QmChart6

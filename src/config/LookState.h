#pragma once

#include "config/LookExtras.h"

#include <cstdint>

namespace QmChart6 {

/// A look as a value: what a viewer shows, and all that is kept of it. As it is made, it is that of a new
/// viewer.
struct LookState {
    Chart chart;
    // The states of four chart options: 0 off, any other number on.
    std::int16_t lines = 1;
    std::int16_t markers = 0;
    std::int16_t stacked = 0;
    std::int16_t fullStacked = 0;
    bool controlBar = true;
    bool maximized = false;
    // The window while it is not maximized, in twips.
    int width = 11580;
    int height = 8640;
    /// What the look that was applied last said beyond the fields of its tables.
    Extras extras = {};

    friend bool operator==(const LookState&, const LookState&) = default;
};

/// Whether two looks are seen as one: neither the window's size counts nor the chart's current cell.
[[nodiscard]] bool LookAlike(const LookState& one, const LookState& other);

} // namespace QmChart6

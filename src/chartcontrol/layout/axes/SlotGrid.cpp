#include "chartcontrol/layout/axes/SlotGrid.h"

#include <cmath>

namespace QmChart6 {

namespace {

/// What part of the plot's width may be left empty.
constexpr double MostEmpty = 0.11;
constexpr double Rounding = 1e-6;

} // namespace

void SnapSlots(PlotArea& area, int count) {
    const double pixels = area.slot * area.pixelsPerPoint;
    const double whole = std::floor(pixels + Rounding);
    if (whole < 1 || pixels - whole > MostEmpty * pixels) return;
    area.slot = whole / area.pixelsPerPoint;
    const double start = area.box.left + (area.box.Width() - count * area.slot) / 2;
    const double startPixel = std::round(start * area.pixelsPerPoint);
    area.firstX = startPixel / area.pixelsPerPoint + area.slot / 2;
}

bool HasWholeSlots(const PlotArea& area) {
    const double pixels = area.slot * area.pixelsPerPoint;
    return pixels >= 1 - Rounding && std::abs(pixels - std::round(pixels)) < Rounding;
}

} // namespace QmChart6

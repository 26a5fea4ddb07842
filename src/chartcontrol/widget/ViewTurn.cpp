#include "chartcontrol/widget/ViewTurn.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace QmChart6 {

namespace {

constexpr double DegreesPerPixel = 0.5;

double FullTurn(AngleUnit unit) {
    switch (unit) {
    case AngleUnit::Degrees:
        return 360;
    case AngleUnit::Radians:
        return 2 * std::numbers::pi;
    case AngleUnit::Gradians:
        return 400;
    }
    return 360;
}

} // namespace

View3d TurnedView(const View3d& view, AngleUnit unit, double right, double down) {
    const double turn = FullTurn(unit);
    const double pixel = DegreesPerPixel * turn / 360;
    const double rotation = std::fmod(view.Rotation + right * pixel, turn);
    return {rotation < 0 ? rotation + turn : rotation,
            std::clamp(view.Elevation + down * pixel, -turn / 4, turn / 4)};
}

} // namespace QmChart6

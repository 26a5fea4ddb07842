#include "dialogs/ChartKinds.h"

#include "chart/ChartFunctions.h"
#include "text/LocalText.h"

#include <algorithm>

namespace QmChart6 {

namespace {

int KeyOf(ChartType kind) {
    switch (kind) {
    case ChartType::Bar3D:
        return 27;
    case ChartType::Bar2D:
        return 20;
    case ChartType::Line3D:
        return 28;
    case ChartType::Line2D:
        return 21;
    case ChartType::Area3D:
    case ChartType::Area2D:
        return 22;
    case ChartType::Step3D:
    case ChartType::Step2D:
        return 23;
    case ChartType::Combination3D:
    case ChartType::Combination2D:
        return 24;
    case ChartType::Pie2D:
        return 25;
    case ChartType::XY2D:
        break;
    }
    return 26;
}

int KeyOf(LabelLocation location) {
    switch (location) {
    case LabelLocation::None:
        return 66;
    case LabelLocation::AbovePoint:
        return 69;
    case LabelLocation::BelowPoint:
        return 70;
    case LabelLocation::Center:
        return 99;
    case LabelLocation::Base:
        return 74;
    case LabelLocation::Inside:
        return 67;
    case LabelLocation::Outside:
        return 68;
    case LabelLocation::Left:
        return 72;
    case LabelLocation::Right:
        break;
    }
    return 73;
}

} // namespace

std::vector<ChartType> ChartKinds(bool threeD, bool oneColumn) {
    if (threeD) {
        std::vector kinds{ChartType::Bar3D, ChartType::Line3D, ChartType::Area3D, ChartType::Step3D};
        if (!oneColumn) kinds.push_back(ChartType::Combination3D);
        return kinds;
    }
    std::vector kinds{ChartType::Bar2D, ChartType::Line2D, ChartType::Area2D, ChartType::Step2D};
    if (!oneColumn) kinds.push_back(ChartType::Combination2D);
    kinds.push_back(ChartType::Pie2D);
    if (!oneColumn) kinds.push_back(ChartType::XY2D);
    return kinds;
}

QString ChartKindText(ChartType kind) {
    return LocalText(KeyOf(kind));
}

std::vector<LabelLocation> LabelLocations(ChartType type) {
    if (type == ChartType::Pie2D) return {LabelLocation::None, LabelLocation::Inside, LabelLocation::Outside};
    if (type == ChartType::XY2D)
        return {LabelLocation::None,   LabelLocation::AbovePoint, LabelLocation::BelowPoint,
                LabelLocation::Center, LabelLocation::Left,       LabelLocation::Right};
    return {LabelLocation::None, LabelLocation::AbovePoint, LabelLocation::BelowPoint, LabelLocation::Center,
            LabelLocation::Base};
}

QStringList LabelLocationTexts(ChartType type) {
    QStringList texts;
    for (const LabelLocation location : LabelLocations(type)) texts.append(LocalText(KeyOf(location)));
    return texts;
}

int IndexOfLabelLocation(ChartType type, LabelLocation location) {
    const std::vector<LabelLocation> locations = LabelLocations(type);
    const auto found = std::find(locations.begin(), locations.end(), FittedLocation(type, location));
    return found == locations.end() ? 0 : static_cast<int>(found - locations.begin());
}

QStringList LabelLineTexts() {
    return {LocalText(75), LocalText(76), LocalText(77)};
}

} // namespace QmChart6

#include "dialogs/ChartKinds.h"

#include "chart/ChartFunctions.h"
#include "text/LocalText.h"

#include <algorithm>

namespace QmChart6 {

namespace {

TextKey KeyOf(ChartType kind) {
    switch (kind) {
    case ChartType::Bar3D:
        return TextKey::BarColumn;
    case ChartType::Bar2D:
        return TextKey::Bar;
    case ChartType::Line3D:
        return TextKey::LineTape;
    case ChartType::Line2D:
        return TextKey::Line;
    case ChartType::Area3D:
    case ChartType::Area2D:
        return TextKey::Area;
    case ChartType::Step3D:
    case ChartType::Step2D:
        return TextKey::Step;
    case ChartType::Combination3D:
    case ChartType::Combination2D:
        return TextKey::Combination;
    case ChartType::Pie2D:
        return TextKey::Pie;
    case ChartType::XY2D:
        break;
    }
    return TextKey::XYScatter;
}

TextKey KeyOf(LabelLocation location) {
    switch (location) {
    case LabelLocation::None:
        return TextKey::NoLabel;
    case LabelLocation::AbovePoint:
        return TextKey::Above;
    case LabelLocation::BelowPoint:
        return TextKey::Below;
    case LabelLocation::Center:
        return TextKey::LabelCenter;
    case LabelLocation::Base:
        return TextKey::Base;
    case LabelLocation::Inside:
        return TextKey::Inside;
    case LabelLocation::Outside:
        return TextKey::Outside;
    case LabelLocation::Left:
        return TextKey::Left;
    case LabelLocation::Right:
        break;
    }
    return TextKey::Right;
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
    return {LocalText(TextKey::NoLabelLine), LocalText(TextKey::StraightLabelLine),
            LocalText(TextKey::BentLabelLine)};
}

} // namespace QmChart6

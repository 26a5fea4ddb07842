#include "dialogs/ChartKinds.h"

#include "chart/ChartFunctions.h"
#include "chartcontrol/model/ChartKinds.h"
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

std::vector<ChartType> KindsOffered(bool threeD, bool oneColumn) {
    std::vector<ChartType> kinds;
    for (const ChartKind& kind : ChartKinds)
        if ((kind.form == ChartForm::Space) == threeD && !(oneColumn && kind.needsColumns))
            kinds.push_back(kind.type);
    return kinds;
}

QString ChartKindText(ChartType kind) {
    return LocalText(KeyOf(kind));
}

LabelLocation LocationOffered(ChartType type, int index) {
    return index < 0 ? LabelLocation::None : KindOf(type).labels.offered[static_cast<std::size_t>(index)];
}

QStringList LabelLocationTexts(ChartType type) {
    QStringList texts;
    for (const LabelLocation location : KindOf(type).labels.offered) texts.append(LocalText(KeyOf(location)));
    return texts;
}

int IndexOfLabelLocation(ChartType type, LabelLocation location) {
    const std::span<const LabelLocation> offered = KindOf(type).labels.offered;
    const auto found = std::find(offered.begin(), offered.end(), FittedLocation(type, location));
    return found == offered.end() ? 0 : static_cast<int>(found - offered.begin());
}

QStringList LabelLineTexts() {
    return {LocalText(TextKey::NoLabelLine), LocalText(TextKey::StraightLabelLine),
            LocalText(TextKey::BentLabelLine)};
}

} // namespace QmChart6

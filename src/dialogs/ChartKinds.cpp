#include "dialogs/ChartKinds.h"

#include "chart/ChartFunctions.h"
#include "chartcontrol/model/ChartKinds.h"
#include "text/LocalText.h"

#include <algorithm>
#include <array>

namespace QmChart6 {

namespace {

/// What the kinds are called, in the order of their table.
constexpr std::array<TextKey, ChartKinds.size()> KindNames{
    TextKey::BarColumn,   TextKey::Bar,         TextKey::LineTape, TextKey::Line,
    TextKey::Area,        TextKey::Area,        TextKey::Step,     TextKey::Step,
    TextKey::Combination, TextKey::Combination, TextKey::Pie,      TextKey::XYScatter};

/// What the data-label locations are called, by their numbers.
constexpr std::array LocationNames{TextKey::NoLabel,     TextKey::Above, TextKey::Below,
                                   TextKey::LabelCenter, TextKey::Base,  TextKey::Inside,
                                   TextKey::Outside,     TextKey::Left,  TextKey::Right};

} // namespace

std::vector<ChartType> KindsOffered(bool threeD, bool oneColumn) {
    std::vector<ChartType> kinds;
    for (const ChartKind& kind : ChartKinds)
        if ((kind.form == ChartForm::Space) == threeD && !(oneColumn && kind.needsColumns))
            kinds.push_back(kind.type);
    return kinds;
}

QString ChartKindText(ChartType kind) {
    return LocalText(KindNames[RowOf(kind)]);
}

LabelLocation LocationOffered(ChartType type, int index) {
    return index < 0 ? LabelLocation::None : KindOf(type).labels.offered[static_cast<std::size_t>(index)];
}

QStringList LabelLocationTexts(ChartType type) {
    QStringList texts;
    for (const LabelLocation location : KindOf(type).labels.offered)
        texts.append(LocalText(LocationNames[static_cast<std::size_t>(location)]));
    return texts;
}

int IndexOfLabelLocation(ChartType type, LabelLocation location) {
    const std::span<const LabelLocation> offered = KindOf(type).labels.offered;
    const auto found = std::find(offered.begin(), offered.end(), FittedLocation(type, location));
    return found == offered.end() ? 0 : static_cast<int>(found - offered.begin());
}

int IndexOfLabelNumber(ChartType type, int number) {
    // The lists leave numbers out: that of pies all from 1 to 4, that of points 4 to 6.
    const bool pie = KindOf(type).form == ChartForm::Pies;
    const int index = number == 0 ? 0 : pie ? number - 4 : number >= 5 ? number - 3 : number;
    const bool isThere = index >= 0 && index < static_cast<int>(KindOf(type).labels.offered.size());
    return isThere ? index : IndexOfLabelLocation(type, ToLabelLocation(number));
}

QStringList LabelLineTexts() {
    return {LocalText(TextKey::NoLabelLine), LocalText(TextKey::StraightLabelLine),
            LocalText(TextKey::BentLabelLine)};
}

} // namespace QmChart6

#include "viewer/ChartTypeList.h"

#include "chartcontrol/model/ChartKinds.h"
#include "dialogs/ChartKinds.h"

#include <algorithm>

namespace QmChart6 {

namespace {

/// Where nothing is chosen, or something that the list does not have; no chart type has that number.
constexpr int NoType = -1;

/// The kinds of the list. The one for a single column lacks those that need more.
std::vector<ChartType> Listed(bool oneColumn) {
    return KindsOffered(false, oneColumn);
}

int PlaceOf(ChartType type, const std::vector<ChartType>& kinds) {
    const auto found = std::find(kinds.begin(), kinds.end(), type);
    return found == kinds.end() ? NoType : static_cast<int>(found - kinds.begin());
}

/// The same kind in space, where there is one.
ChartType InSpace(ChartType flat) {
    const auto found = std::find_if(ChartKinds.begin(), ChartKinds.end(),
                                    [flat](const ChartKind& kind) { return kind.flat == flat; });
    return found == ChartKinds.end() ? flat : found->type;
}

} // namespace

QStringList ChartTypeTexts(int columnCount, bool threeD) {
    QStringList texts;
    for (const ChartType kind : Listed(columnCount <= 1))
        if (columnCount > 1 || !threeD || InSpace(kind) != kind) texts.append(ChartKindText(kind));
    return texts;
}

int IndexOfChartType(ChartType type, int columnCount) {
    const ChartType flat = KindOf(type).flat.value_or(type);
    const int place = columnCount == 1 ? PlaceOf(flat, Listed(true)) : NoType;
    return place == NoType ? PlaceOf(flat, Listed(false)) : place;
}

int ChartTypeAtIndex(int index, int columnCount, bool threeD) {
    const auto at = [index](const std::vector<ChartType>& kinds) -> std::optional<ChartType> {
        const bool isThere = index >= 0 && index < static_cast<int>(kinds.size());
        return isThere ? std::optional(kinds[static_cast<std::size_t>(index)]) : std::nullopt;
    };
    std::optional<ChartType> type = columnCount == 1 ? at(Listed(true)) : std::nullopt;
    if (!type) type = at(Listed(false));
    if (!type) return NoType;
    return static_cast<int>(threeD ? InSpace(*type) : *type);
}

} // namespace QmChart6

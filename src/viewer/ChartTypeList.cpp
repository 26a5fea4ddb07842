#include "viewer/ChartTypeList.h"

#include "text/LocalText.h"

namespace QmChart6 {

namespace {

// Where the types stand that do not come as a pair of 3D and 2D. Pie takes the place of the combination in
// the list for one column.
constexpr int PieIndexOfOneColumn = 4;
constexpr int PieIndex = 5;
constexpr int XYIndex = 6;

} // namespace

QStringList ChartTypeTexts(int columnCount, bool threeD) {
    QStringList texts;
    for (const TextKey key : {TextKey::Bar, TextKey::Line, TextKey::Area, TextKey::Step})
        texts.append(LocalText(key));
    if (columnCount > 1)
        texts << LocalText(TextKey::Combination) << LocalText(TextKey::Pie) << LocalText(TextKey::XYScatter);
    else if (!threeD)
        texts << LocalText(TextKey::Pie);
    return texts;
}

int IndexOfChartType(ChartType type, int columnCount) {
    if (type == ChartType::XY2D) return XYIndex;
    if (type == ChartType::Pie2D) return columnCount == 1 ? PieIndexOfOneColumn : PieIndex;
    return static_cast<int>(type) / 2;
}

int ChartTypeAtIndex(int index, int columnCount, bool threeD) {
    const bool pie = index == PieIndex || (index == PieIndexOfOneColumn && columnCount == 1);
    if (pie) return static_cast<int>(ChartType::Pie2D);
    if (index == XYIndex) return static_cast<int>(ChartType::XY2D);
    return 2 * index + (threeD ? 0 : 1);
}

} // namespace QmChart6

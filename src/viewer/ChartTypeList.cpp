#include "viewer/ChartTypeList.h"

#include "text/LocalText.h"

namespace QmChart6 {

namespace {

constexpr int BarKey = 20; // line, area and step follow
constexpr int StepKey = 23;
constexpr int CombinationKey = 24;
constexpr int PieKey = 25;
constexpr int XYKey = 26;

} // namespace

QStringList ChartTypeTexts(int columnCount, bool threeD) {
    QStringList texts;
    for (int key = BarKey; key <= StepKey; ++key) texts.append(LocalText(key));
    if (columnCount > 1)
        texts << LocalText(CombinationKey) << LocalText(PieKey) << LocalText(XYKey);
    else if (!threeD)
        texts << LocalText(PieKey);
    return texts;
}

int IndexOfChartType(ChartType type, int columnCount) {
    if (type == ChartType::XY2D) return 6;
    if (type == ChartType::Pie2D) return columnCount == 1 ? 4 : 5;
    return static_cast<int>(type) / 2;
}

} // namespace QmChart6

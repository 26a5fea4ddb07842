#include "chartcontrol/model/ChartKinds.h"

namespace QmChart6 {

namespace {

RuntimeError ThereIsNo(const char* what, int number) {
    return RuntimeError(ErrorNumber::InvalidPropertyValue,
                        QStringLiteral("there is no %1 %2").arg(QString::fromLatin1(what)).arg(number));
}

} // namespace

ChartType ToChartType(int number) {
    for (const ChartKind& kind : ChartKinds)
        if (static_cast<int>(kind.type) == number) return kind.type;
    throw ThereIsNo("chart type", number);
}

SeriesType ToSeriesType(int number) {
    for (const MarkKind& kind : MarkKinds)
        for (const SeriesType type : kind.series)
            if (static_cast<int>(type) == number) return type;
    throw ThereIsNo("series type", number);
}

} // namespace QmChart6

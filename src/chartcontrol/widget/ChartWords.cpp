#include "chartcontrol/widget/ChartWords.h"

#include "base/NumberText.h"
#include "chartcontrol/layout/SeriesLook.h"
#include "chartcontrol/layout/XYPairs.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace QmChart6 {

namespace {

QString KindOf(ChartType type) {
    switch (type) {
    case ChartType::Bar3D:
        return QStringLiteral("3D bar chart");
    case ChartType::Bar2D:
        return QStringLiteral("Bar chart");
    case ChartType::Line3D:
        return QStringLiteral("3D line chart");
    case ChartType::Line2D:
        return QStringLiteral("Line chart");
    case ChartType::Area3D:
        return QStringLiteral("3D area chart");
    case ChartType::Area2D:
        return QStringLiteral("Area chart");
    case ChartType::Step3D:
        return QStringLiteral("3D step chart");
    case ChartType::Step2D:
        return QStringLiteral("Step chart");
    case ChartType::Combination3D:
        return QStringLiteral("3D combination chart");
    case ChartType::Combination2D:
        return QStringLiteral("Combination chart");
    case ChartType::Pie2D:
        return QStringLiteral("Pie chart");
    case ChartType::XY2D:
        return QStringLiteral("XY chart");
    }
    return QStringLiteral("Chart");
}

QString Counted(int count, const QString& one, const QString& many) {
    return QStringLiteral("%1 %2").arg(count).arg(count == 1 ? one : many);
}

QString NumberWords(double value) {
    return std::isnan(value) ? QStringLiteral("no value") : TextOfDouble(value);
}

} // namespace

QString SeriesWords(const Chart& chart, int series) {
    const QString name = LegendName(chart, series).simplified();
    return name.isEmpty() ? QStringLiteral("Series %1").arg(series) : name;
}

QString PointWords(const Chart& chart, DataPointHit point) {
    if (chart.chartType() == ChartType::XY2D) {
        const XYPairs pairs(chart, point.series);
        return QStringLiteral("%1; %2").arg(NumberWords(pairs.X(point.category - 1)),
                                            NumberWords(pairs.Y(point.category - 1)));
    }
    const QString name = chart.CategoryName(point.category).simplified();
    const QString category = name.isEmpty() ? QString::number(point.category) : name;
    return QStringLiteral("%1: %2").arg(category,
                                        NumberWords(chart.SeriesValues(point.series)[point.category - 1]));
}

QString TipOf(const Chart& chart, DataPointHit point) {
    return SeriesWords(chart, point.series) + u'\n' + PointWords(chart, point);
}

QString ChartWords(const Chart& chart) {
    int drawn = 0;
    double least = std::numeric_limits<double>::infinity();
    double greatest = -least;
    for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series) {
        if (IsDrawn(chart, series)) ++drawn;
        const Values values = chart.SeriesValues(series);
        for (int i = 0; i < values.count; ++i) {
            if (std::isnan(values[i])) continue;
            least = std::min(least, values[i]);
            greatest = std::max(greatest, values[i]);
        }
    }
    const bool isXY = chart.chartType() == ChartType::XY2D;
    const QString what =
        QStringLiteral("%1 with %2 and %3")
            .arg(KindOf(chart.chartType()),
                 Counted(drawn, QStringLiteral("series"), QStringLiteral("series")),
                 isXY ? Counted(chart.CategoryCount(), QStringLiteral("point"), QStringLiteral("points"))
                      : Counted(chart.CategoryCount(), QStringLiteral("category"),
                                QStringLiteral("categories")));
    if (least > greatest) return what + QStringLiteral(", without values.");
    return what + QStringLiteral(", values from %1 to %2.").arg(TextOfDouble(least), TextOfDouble(greatest));
}

} // namespace QmChart6

#include "chartcontrol/layout/data/SeriesLook.h"

#include <array>

namespace QmChart6 {

MarkKind MarkKindOf(const Chart& chart, int series) {
    if (chart.chartType() == ChartType::Pie2D) return MarkKind::Pie;
    if (chart.chartType() == ChartType::XY2D) return MarkKind::XY;
    switch (chart.Plot.SeriesCollection(series).SeriesType) {
    case SeriesType::Line3D:
    case SeriesType::Line2D:
    case SeriesType::XY2D:
        return MarkKind::Line;
    case SeriesType::Area3D:
    case SeriesType::Area2D:
        return MarkKind::Area;
    case SeriesType::Step3D:
    case SeriesType::Step2D:
        return MarkKind::Step;
    case SeriesType::Bar3D:
    case SeriesType::Bar2D:
    case SeriesType::Pie2D:
        break;
    }
    return MarkKind::Bar;
}

MarkerStyle MarkerStyleOf(const Series& series, int number) {
    static constexpr std::array Styles{MarkerStyle::Circle,       MarkerStyle::Square, MarkerStyle::Diamond,
                                       MarkerStyle::TriangleUp,   MarkerStyle::Cross,  MarkerStyle::Plus,
                                       MarkerStyle::TriangleDown, MarkerStyle::Star};
    const MarkerStyle style = series.DataPoints.Item(DataPoints::All).Marker.Style;
    return style == MarkerStyle::Automatic ? Styles[static_cast<std::size_t>(number - 1) % Styles.size()]
                                           : style;
}

LineLook LineLookOf(const Series& series) {
    const bool line = series.ShowLine && series.LinePen.Style != PenStyle::None;
    return {line, series.SeriesMarker.Show || !line};
}

Stroke LineStrokeOf(const Series& series) {
    return {series.LinePen.Style, series.LinePen.Width,
            series.DataPoints.Item(DataPoints::All).Brush.FillColor};
}

bool IsDrawn(const Chart& chart, int series) {
    return chart.chartType() != ChartType::XY2D || series % 2 == 1;
}

QString LegendName(const Chart& chart, int series) {
    const QString& own = chart.SeriesName(series);
    if (chart.chartType() != ChartType::XY2D || series == chart.Plot.SeriesCollection.Count()) return own;
    const QString& next = chart.SeriesName(series + 1);
    if (own.isEmpty() || next.isEmpty()) return own + next;
    return own + QStringLiteral(" / ") + next;
}

} // namespace QmChart6

#include "chartcontrol/layout/data/SeriesLook.h"

#include "chartcontrol/model/ColourContrast.h"

#include <array>

namespace QmChart6 {

Mark MarkOfSeries(const Chart& chart, int series) {
    return MarkOf(chart.chartType(), chart.Plot.SeriesCollection(series).SeriesType);
}

bool PairsColumns(const Chart& chart) {
    return KindOf(chart.chartType()).pairsColumns;
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

Colour ShownColour(const Chart& chart, const Brush& brush) {
    const bool patterned = brush.Style == BrushStyle::Pattern || brush.Style == BrushStyle::Hatch;
    if (!patterned) return brush.FillColor;
    const Colour ground = chart.Backdrop.Fill.Brush.FillColor;
    return Contrast(brush.FillColor, ground) >= Contrast(brush.PatternColor, ground) ? brush.FillColor
                                                                                     : brush.PatternColor;
}

Stroke LineStrokeOf(const Chart& chart, const Series& series) {
    return {series.LinePen.Style, series.LinePen.Width,
            ShownColour(chart, series.DataPoints.Item(DataPoints::All).Brush)};
}

Stroke EdgeOf(const Chart& chart, const DataPoint& look, bool plain) {
    const bool patterned = look.Brush.Style == BrushStyle::Pattern || look.Brush.Style == BrushStyle::Hatch;
    if (look.EdgePen.Style != PenStyle::None || !patterned || plain) return StrokeOf(look.EdgePen);
    constexpr double fine = 0.75;
    return {PenStyle::Solid, fine, ShownColour(chart, look.Brush)};
}

bool IsDrawn(const Chart& chart, int series) {
    return !PairsColumns(chart) || series % 2 == 1;
}

QString LegendName(const Chart& chart, int series) {
    const QString& own = chart.SeriesName(series);
    if (!PairsColumns(chart) || series == chart.Plot.SeriesCollection.Count()) return own;
    const QString& next = chart.SeriesName(series + 1);
    if (own.isEmpty() || next.isEmpty()) return own + next;
    return own + QStringLiteral(" / ") + next;
}

} // namespace QmChart6

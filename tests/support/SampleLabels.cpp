#include "support/SampleKit.h"

#include "chartcontrol/model/Palette.h"

#include <cmath>

namespace QmChart6::Samples {

namespace {

constexpr int Everything = LabelShowsValue | LabelShowsPercent | LabelShowsSeriesName;

Chart NamedAtEnds(Chart chart) {
    chart.Plot.DirectNames = true;
    return chart;
}

/// Lines that end close together, whose names must be moved apart.
Chart CloseEnds(ChartType type, int lines) {
    Chart chart = ChartOf(10, lines, [](int row, int column) { return 50 + (10.0 - row) * (column - 3); });
    chart.SetChartType(type);
    return NamedAtEnds(std::move(chart));
}

Chart LongEndNames() {
    Chart chart = Sales(3, ChartType::Line2D);
    chart.DataGrid.SetColumnLabel(1, QStringLiteral("Fruit and Vegetables"));
    chart.DataGrid.SetColumnLabel(2, QStringLiteral("Household Goods"));
    return NamedAtEnds(std::move(chart));
}

/// Few categories and one series: bars that are wider than any label.
Chart Wide(LabelLocation location, ChartType type = ChartType::Bar2D) {
    Chart chart = ChartOf(4, 1, [](int row, int) { return row == 3 ? -35.5 : 20.5 * row; });
    chart.SetChartType(type);
    return WithLabels(std::move(chart), location);
}

/// Many bars, narrower than their labels.
Chart Narrow(LabelLocation location) {
    return WithLabels(ChartOf(30, 1, [](int row, int) { return 1000 + 17.0 * Wave(row, 1); }), location);
}

Chart Piled(ChartType type, LabelLocation location, bool shares = false) {
    return WithLabels(Stacked(type, shares), location, shares ? LabelShowsPercent : LabelShowsValue);
}

Chart OnPatterns(LabelLocation location) {
    Chart chart = Sales(4);
    chart.Stacking = true;
    for (int series = 1; series <= 4; ++series)
        LookOf(chart, series).Brush = {
            BrushStyle::Pattern, 2 * series, {235, 240, 248}, PaletteColour(series)};
    return WithLabels(std::move(chart), location);
}

Chart FewPoints(LabelLocation location) {
    Chart chart = ChartOf(
        9, 2, [](int row, int column) { return column == 1 ? 10.0 * row : 40 + 30 * std::sin(1.1 * row); });
    chart.SetChartType(ChartType::XY2D);
    chart.Plot.SeriesCollection(1).SeriesMarker.Show = true;
    chart.Plot.SeriesCollection(1).ShowLine = false;
    return WithLabels(std::move(chart), location);
}

Chart PieOf(LabelLocation location, int component, LabelLineStyle line = LabelLineStyle::None) {
    return WithLabels(Pies(1, 6, LabelLocation::None), location, component, line);
}

Chart PatternedPie(LabelLocation location) {
    Chart chart = PieOf(location, Everything);
    for (int series = 1; series <= 6; ++series)
        LookOf(chart, series).Brush = {BrushStyle::Hatch, series - 1, {235, 240, 248}, PaletteColour(series)};
    return chart;
}

Chart OwnText() {
    Chart chart = Wide(LabelLocation::AbovePoint);
    DataPointLabel& label = chart.Plot.SeriesCollection(1).DataPoints.Item(2).DataPointLabel;
    label.Custom = true;
    label.Text = QStringLiteral("a good year,\nafter all");
    return chart;
}

Chart LargeLabels() {
    Chart chart = Wide(LabelLocation::AbovePoint);
    LookOf(chart, 1).DataPointLabel.VtFont.Size = 16;
    LookOf(chart, 1).DataPointLabel.ValueFormat = QStringLiteral("0.00");
    return chart;
}

} // namespace

std::vector<Sample> Labels() {
    using T = ChartType;
    using L = LabelLocation;
    using S = LabelLineStyle;
    return {
        {"line-names", 480, 300, [] { return NamedAtEnds(Sales(4, T::Line2D)); }},
        {"line-names-close", 400, 260, [] { return CloseEnds(T::Line2D, 6); }},
        {"line-names-many", 400, 300, [] { return CloseEnds(T::Line2D, 12); }},
        {"line-names-long", 400, 260, LongEndNames},
        {"line-names-missing", 400, 260, [] { return NamedAtEnds(SignsAndGaps(T::Line2D)); }},
        {"line-names-logarithmic", 400, 260, [] { return NamedAtEnds(Logarithmic(T::Line2D)); }},
        {"line-names-dark", 400, 260, [] { return Dark(NamedAtEnds(Sales(4, T::Line2D))); }},
        {"line-names-small", 200, 150, [] { return NamedAtEnds(OfKind(T::Line2D)); }},
        {"step-names", 400, 260, [] { return NamedAtEnds(Sales(3, T::Step2D)); }},
        {"step-names-close", 400, 260, [] { return CloseEnds(T::Step2D, 6); }},
        {"area-names", 400, 260, [] { return NamedAtEnds(Sales(3, T::Area2D)); }},
        {"area-names-stacked", 400, 260, [] { return NamedAtEnds(Stacked(T::Area2D, false)); }},
        {"area-names-shares", 400, 260, [] { return NamedAtEnds(Stacked(T::Area2D, true)); }},
        {"bar-wide-above", 320, 220, [] { return Wide(L::AbovePoint); }},
        {"bar-wide-below", 320, 220, [] { return Wide(L::BelowPoint); }},
        {"bar-wide-center", 320, 220, [] { return Wide(L::Center); }},
        {"bar-wide-base", 320, 220, [] { return Wide(L::Base); }},
        {"bar-narrow-above", 400, 260, [] { return Narrow(L::AbovePoint); }},
        {"bar-narrow-center", 400, 260, [] { return Narrow(L::Center); }},
        {"bar-narrow-base", 400, 260, [] { return Narrow(L::Base); }},
        {"bar-labels-signs", 480, 300, [] { return WithLabels(SignsAndGaps(T::Bar2D), L::AbovePoint); }},
        {"bar-labels-custom", 320, 220, OwnText},
        {"bar-labels-large", 320, 220, LargeLabels},
        {"bar-stacked-above", 480, 300, [] { return Piled(T::Bar2D, L::AbovePoint); }},
        {"bar-stacked-center", 480, 300, [] { return Piled(T::Bar2D, L::Center); }},
        {"bar-stacked-base", 480, 300, [] { return Piled(T::Bar2D, L::Base); }},
        {"bar-shares-center", 720, 300, [] { return Piled(T::Bar2D, L::Center, true); }},
        {"bar-patterns-center", 480, 300, [] { return OnPatterns(L::Center); }},
        {"bar-labels-dark", 480, 300, [] { return Dark(Piled(T::Bar2D, L::Center)); }},
        {"line-labels-below", 400, 260, [] { return Labelled(T::Line2D, L::BelowPoint); }},
        {"line-labels-center", 400, 260, [] { return Labelled(T::Line2D, L::Center); }},
        {"step-labels", 400, 260, [] { return Labelled(T::Step2D, L::AbovePoint); }},
        {"area-labels-above", 400, 260, [] { return Labelled(T::Area2D, L::AbovePoint); }},
        {"area-labels-stacked", 400, 260, [] { return Piled(T::Area2D, L::Center); }},
        {"combination-labels", 400, 260, [] { return Labelled(T::Combination2D, L::AbovePoint); }},
        {"xy-labels-above", 320, 220, [] { return FewPoints(L::AbovePoint); }},
        {"xy-labels-below", 320, 220, [] { return FewPoints(L::BelowPoint); }},
        {"xy-labels-center", 320, 220, [] { return FewPoints(L::Center); }},
        {"xy-labels-left", 320, 220, [] { return FewPoints(L::Left); }},
        {"xy-labels-right", 320, 220, [] { return FewPoints(L::Right); }},
        {"xy-labels-crowded", 480, 300, [] { return WithLabels(Scatter(2), L::AbovePoint); }},
        {"pie-inside", 320, 220, [] { return PieOf(L::Inside, LabelShowsPercent); }},
        {"pie-inside-everything", 320, 220, [] { return PieOf(L::Inside, Everything); }},
        {"pie-outside-everything", 400, 260, [] { return PieOf(L::Outside, Everything); }},
        {"pie-straight-everything", 400, 260, [] { return PieOf(L::Outside, Everything, S::Straight); }},
        {"pie-bent-values", 400, 260, [] { return PieOf(L::Outside, LabelShowsValue, S::Bent); }},
        {"pie-grid-outside", 480, 320, [] { return Pies(6, 5, L::Outside); }},
        {"pie-hatches", 400, 260, [] { return PatternedPie(L::Inside); }},
        {"pie-hatches-outside", 400, 260, [] { return PatternedPie(L::Outside); }},
    };
}

} // namespace QmChart6::Samples

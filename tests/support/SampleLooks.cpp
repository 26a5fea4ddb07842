#include "support/SampleKit.h"

#include "chartcontrol/model/Palette.h"

#include <cmath>

namespace QmChart6::Samples {

namespace {

Chart Many(int columns, ChartType type) {
    Chart chart = ChartOf(8, columns, Wave);
    chart.SetChartType(type);
    return chart;
}

/// So many points that they hide each other.
Chart Crowd(int columns) {
    Chart chart = ChartOf(250, columns, [](int row, int column) {
        const double turn = 2.399963 * row + column;
        const double radius = std::sqrt(row / 250.0) * (column <= 2 ? 20 : 12);
        return column % 2 == 1 ? 40 + 6 * column + radius * std::cos(turn) : 50 + radius * std::sin(turn - 1);
    });
    chart.SetChartType(ChartType::XY2D);
    for (Series& series : chart.Plot.SeriesCollection) {
        series.ShowLine = false;
        series.SeriesMarker.Show = true;
    }
    return chart;
}

Chart LongLegendAt(LocationType location) {
    Chart chart = OfKind(ChartType::Bar2D);
    const QStringList names{QStringLiteral("Fruit and Vegetables from Everywhere"), QStringLiteral("Dairy"),
                            QStringLiteral("Household Goods, Tools and Toys")};
    for (int column = 1; column <= 3; ++column) chart.DataGrid.SetColumnLabel(column, names[column - 1]);
    chart.Legend.Location.LocationType = location;
    return chart;
}

Chart Outlined(Chart chart, BrushStyle style, int step) {
    for (int series = 1; series <= chart.Plot.SeriesCollection.Count(); ++series) {
        DataPoint& look = LookOf(chart, series);
        look.Brush = {style, step * (series - 1), {235, 240, 248}, PaletteColour(series)};
        if (style == BrushStyle::Solid) look.Brush.FillColor = PaletteColour(series);
        look.EdgePen = {PenStyle::Solid, 1, Colour{40, 44, 52}};
    }
    return chart;
}

Chart Coloured(Colour ground) {
    Chart chart = OfKind(ChartType::Combination2D);
    chart.Backdrop.Fill.Brush.FillColor = ground;
    return chart;
}

/// Statistics lines of every series.
Chart Measured(Chart chart, int flags) {
    for (Series& series : chart.Plot.SeriesCollection) series.StatLine.Flag = flags;
    return chart;
}

void AddDark(std::vector<Sample>& samples) {
    for (const auto& [name, type] : Kinds)
        samples.push_back(
            {"dark-" + std::string(name), 320, 220, [type = type] { return Dark(OfKind(type)); }});
}

void AddLongLegends(std::vector<Sample>& samples) {
    constexpr std::array places{"top-left", "top",         "top-right", "left",
                                "right",    "bottom-left", "bottom",    "bottom-right"};
    for (std::size_t place = 0; place < places.size(); ++place)
        samples.push_back({"legend-" + std::string(places[place]), 360, 220,
                           [place] { return LongLegendAt(static_cast<LocationType>(place)); }});
}

} // namespace

std::vector<Sample> Looks() {
    using T = ChartType;
    using L = LabelLocation;
    std::vector<Sample> samples{
        {"bar-12-series", 400, 260, [] { return Many(12, T::Bar2D); }},
        {"line-12-series", 400, 260, [] { return Many(12, T::Line2D); }},
        {"area-12-series", 400, 260, [] { return Many(12, T::Area2D); }},
        {"step-12-series", 400, 260, [] { return Many(12, T::Step2D); }},
        {"pie-12-series", 400, 260, [] { return Pies(1, 12, L::Outside); }},
        {"xy-12-series", 400, 260, [] { return Scatter(12); }},
        {"bar-40-series", 480, 300, [] { return Many(40, T::Bar2D); }},
        {"line-40-series", 480, 300, [] { return Many(40, T::Line2D); }},
        {"pie-40-series", 480, 300, [] { return Pies(1, 40, L::Outside); }},
        {"area-2-series", 320, 220, [] { return Many(2, T::Area2D); }},
        {"area-5-series", 320, 220, [] { return Many(5, T::Area2D); }},
        {"xy-crowded", 400, 260, [] { return Crowd(2); }},
        {"xy-crowded-pairs", 400, 260, [] { return Crowd(6); }},
        {"bar-outlines", 320, 220, [] { return Outlined(OfKind(T::Bar2D), BrushStyle::Solid, 1); }},
        {"bar-patterns-outlined", 320, 220,
         [] { return Outlined(OfKind(T::Bar2D), BrushStyle::Pattern, 5); }},
        {"bar-hatches-outlined", 320, 220, [] { return Outlined(OfKind(T::Bar2D), BrushStyle::Hatch, 2); }},
        {"bar-hatches-stacked", 400, 260,
         [] { return Outlined(Stacked(T::Bar2D, false), BrushStyle::Hatch, 1); }},
        {"area-hatches", 320, 220, [] { return Outlined(OfKind(T::Area2D), BrushStyle::Hatch, 2); }},
        {"area-patterns-stacked", 400, 260,
         [] { return Outlined(Stacked(T::Area2D, false), BrushStyle::Pattern, 4); }},
        {"pie-patterns-outlined", 320, 220,
         [] { return Outlined(OfKind(T::Pie2D), BrushStyle::Pattern, 2); }},
        {"bar-hollow", 320, 220, [] { return Outlined(OfKind(T::Bar2D), BrushStyle::None, 1); }},
        {"bar-3d-hatches", 320, 220, [] { return Outlined(OfKind(T::Bar3D), BrushStyle::Hatch, 2); }},
        {"ground-yellow", 320, 220, [] { return Coloured({255, 246, 210}); }},
        {"ground-grey", 320, 220, [] { return Coloured({128, 128, 128}); }},
        {"ground-navy", 320, 220, [] { return Coloured({0, 0, 96}); }},
        {"area-statistics", 400, 260, [] { return Statistics(Sales(1, T::Area2D)); }},
        {"step-statistics", 400, 260, [] { return Statistics(Sales(1, T::Step2D)); }},
        {"combination-statistics", 400, 260,
         [] { return Measured(Sales(2, T::Combination2D), StatMean | StatRegression); }},
        {"line-statistics-three", 400, 260,
         [] { return Measured(Sales(3, T::Line2D), StatMean | StatStandardDeviation); }},
        {"bar-statistics-dark", 400, 260, [] { return Dark(Statistics(Sales(1))); }},
    };
    AddDark(samples);
    AddLongLegends(samples);
    return samples;
}

} // namespace QmChart6::Samples

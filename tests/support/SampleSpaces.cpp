#include "support/SampleKit.h"

namespace QmChart6::Samples {

namespace {

/// Sixty rows of two series.
Chart ManyRows(ChartType type) {
    Chart chart = ChartOf(60, 2, Wave);
    chart.SetChartType(type);
    chart.Plot.View3d = {50, 25};
    return chart;
}

Chart ManySeries(ChartType type) {
    Chart chart = ChartOf(5, 12, Wave);
    chart.SetChartType(type);
    return chart;
}

Chart Together(ChartType flat, bool shares, bool signs = false) {
    const ChartType type = static_cast<ChartType>(static_cast<int>(flat) - 1);
    return InSpace(Stacked(flat, shares, signs), type);
}

/// Every 3D type in every projection from four sides, small, so that many fit a page.
void AddSpaceViews(std::vector<Sample>& samples) {
    const std::vector<std::pair<const char*, ChartType>> types{{"bar", ChartType::Bar3D},
                                                               {"line", ChartType::Line3D},
                                                               {"area", ChartType::Area3D},
                                                               {"step", ChartType::Step3D},
                                                               {"combination", ChartType::Combination3D}};
    const std::vector<std::pair<const char*, Projection>> projections{
        {"perspective", Projection::Perspective},
        {"oblique", Projection::Oblique},
        {"orthogonal", Projection::Orthogonal}};
    const std::vector<View3d> views{{60, 30}, {130, 15}, {220, 45}, {320, -25}};
    for (const auto& [typeName, type] : types)
        for (const auto& [projectionName, projection] : projections)
            for (std::size_t view = 0; view < views.size(); ++view)
                samples.push_back({"space-" + std::string(typeName) + '-' + projectionName + '-' +
                                       std::to_string(static_cast<int>(views[view].Rotation)),
                                   320, 240, [type = type, projection = projection, view = views[view]] {
                                       Chart chart = ChartOf(5, 3, [](int row, int column) {
                                           return row == 4 && column == 2 ? -20.0 : Wave(row, column);
                                       });
                                       chart.SetChartType(type);
                                       chart.Plot.Projection = projection;
                                       chart.Plot.View3d = view;
                                       chart.ShowLegend = false;
                                       return chart;
                                   }});
}

} // namespace

std::vector<Sample> Spaces() {
    using T = ChartType;
    using L = LabelLocation;
    std::vector<Sample> samples{
        {"bar-3d", 640, 420, [] { return Space(T::Bar3D); }},
        {"bar-3d-left", 640, 420, [] { return Space(T::Bar3D, 120, 20); }},
        {"bar-3d-orthogonal", 640, 420, [] { return Space(T::Bar3D, 60, 30, Projection::Orthogonal); }},
        {"bar-3d-perspective", 640, 420, [] { return Space(T::Bar3D, 60, 30, Projection::Perspective); }},
        {"bar-3d-behind", 640, 420, [] { return Space(T::Bar3D, 230, 40, Projection::Orthogonal); }},
        {"bar-3d-below", 640, 420, [] { return Space(T::Bar3D, 60, -30, Projection::Perspective); }},
        {"bar-3d-stacked", 640, 420, [] { return InSpace(Stacked(T::Bar2D, false), T::Bar3D); }},
        {"bar-3d-shares", 640, 420, [] { return InSpace(Stacked(T::Bar2D, true), T::Bar3D); }},
        {"bar-3d-signs", 640, 420, [] { return SignsAndGaps(T::Bar3D); }},
        {"bar-3d-stacked-signs", 640, 420, [] { return InSpace(Stacked(T::Bar2D, false, true), T::Bar3D); }},
        {"bar-3d-labels", 640, 420, [] { return Labelled(T::Bar3D, L::AbovePoint); }},
        {"line-3d", 640, 420, [] { return Space(T::Line3D); }},
        {"line-3d-orthogonal", 640, 420, [] { return Space(T::Line3D, 40, 25, Projection::Orthogonal); }},
        {"line-3d-signs", 640, 420, [] { return SignsAndGaps(T::Line3D); }},
        {"area-3d", 640, 420, [] { return Space(T::Area3D); }},
        {"area-3d-perspective", 640, 420, [] { return Space(T::Area3D, 130, 35, Projection::Perspective); }},
        {"area-3d-stacked", 640, 420, [] { return InSpace(Stacked(T::Area2D, false), T::Area3D); }},
        {"area-3d-signs", 640, 420, [] { return SignsAndGaps(T::Area3D); }},
        {"step-3d", 640, 420, [] { return Space(T::Step3D); }},
        {"step-3d-perspective", 640, 420, [] { return Space(T::Step3D, 120, 25, Projection::Perspective); }},
        {"combination-3d", 640, 420, [] { return Space(T::Combination3D); }},
        {"bar-3d-labels-center", 400, 280, [] { return Labelled(T::Bar3D, L::Center); }},
        {"bar-3d-stacked-labels", 400, 280, [] { return WithLabels(Together(T::Bar2D, false), L::Center); }},
        {"line-3d-labels", 400, 280, [] { return Labelled(T::Line3D, L::AbovePoint); }},
        {"area-3d-labels", 400, 280, [] { return Labelled(T::Area3D, L::AbovePoint); }},
        {"step-3d-labels", 400, 280, [] { return Labelled(T::Step3D, L::AbovePoint); }},
        {"bar-3d-60-rows", 400, 280, [] { return ManyRows(T::Bar3D); }},
        {"line-3d-60-rows", 400, 280, [] { return ManyRows(T::Line3D); }},
        {"area-3d-60-rows", 400, 280, [] { return ManyRows(T::Area3D); }},
        {"bar-3d-12-series", 400, 280, [] { return ManySeries(T::Bar3D); }},
        {"line-3d-12-series", 400, 280, [] { return ManySeries(T::Line3D); }},
        {"step-3d-signs", 400, 280, [] { return SignsAndGaps(T::Step3D); }},
        {"combination-3d-signs", 400, 280, [] { return SignsAndGaps(T::Combination3D); }},
        {"area-3d-shares", 400, 280, [] { return Together(T::Area2D, true); }},
        {"step-3d-shares", 400, 280, [] { return Together(T::Step2D, true); }},
        {"line-3d-shares", 400, 280, [] { return Together(T::Line2D, true); }},
        {"combination-3d-stacked", 400, 280, [] { return Together(T::Combination2D, false); }},
        {"bar-3d-shares-signs", 400, 280, [] { return Together(T::Bar2D, true, true); }},
        {"bar-3d-stacked-dark", 400, 280, [] { return Dark(Together(T::Bar2D, false)); }},
        {"area-3d-labels-dark", 400, 280, [] { return Dark(Labelled(T::Area3D, L::AbovePoint)); }},
    };
    AddSpaceViews(samples);
    return samples;
}

} // namespace QmChart6::Samples

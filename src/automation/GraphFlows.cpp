#include "automation/GraphFlows.h"

#include "automation/ChartSize.h"
#include "automation/FillChartData.h"
#include "automation/Printers.h"
#include "automation/ViewerList.h"
#include "chart/ValueLabelFormat.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationStore.h"
#include "desktop/Application.h"
#include "desktop/QtTexts.h"
#include "text/Languages.h"
#include "text/LocalText.h"
#include "viewer/ChartWarnings.h"
#include "viewer/GraphForm.h"
#include "viewer/PrintChart.h"
#include "viewer/Snapshot.h"

namespace QmChart6 {

namespace {

/// Holds a chart's painting back while it is changed, also when the change fails half way.
class RepaintingOff {
public:
    explicit RepaintingOff(ChartControl& chart) : chart_(chart) { chart_.SetRepaint(false); }
    ~RepaintingOff() { chart_.SetRepaint(true); }
    RepaintingOff(const RepaintingOff&) = delete;
    RepaintingOff& operator=(const RepaintingOff&) = delete;

private:
    ChartControl& chart_;
};

/// Once the host has changed a viewer's chart, nothing from before may come back, also where it failed half
/// way.
class HistoryRestarted {
public:
    explicit HistoryRestarted(ViewerPointer viewer) : viewer_(std::move(viewer)) {}
    ~HistoryRestarted() { viewer_->RestartHistory(); }
    HistoryRestarted(const HistoryRestarted&) = delete;
    HistoryRestarted& operator=(const HistoryRestarted&) = delete;

private:
    ViewerPointer viewer_;
};

ViewerPointer ViewerFor(const QString& graphId) {
    QString id = graphId;
    ViewerPointer viewer = FindViewer(id);
    if (IsViewerMissing(viewer)) return CreateViewer(id);
    if (viewer->WindowState() == 1) viewer->BringUp();
    return viewer;
}

void SetTitles(Chart& chart, const ChartRequest& request) {
    chart.Title.Text = request.chartTitle;
    chart.Plot.Axis(AxisId::X).AxisTitle.Text = request.rowTitle;
    chart.Plot.Axis(AxisId::Y).AxisTitle.Text = request.valueTitle;
    chart.Plot.Axis(AxisId::SecondaryY).AxisTitle.Text = request.valueTitle;
    chart.Plot.Axis(AxisId::Z).AxisTitle.Text = request.columnTitle;
}

/// The viewer of the request's id with its data and titles, made where there is none.
ViewerPointer LoadedViewer(const ChartRequest& request) {
    ViewerPointer viewer = ViewerFor(request.graphId);
    const HistoryRestarted history(viewer);
    const RepaintingOff quiet(viewer->ChartImage());
    Chart& chart = viewer->ChartImage().Model();
    FillChartData(chart, request.rows, request.columns, request.data, request.rowLabels,
                  request.columnLabels);
    SetTitles(chart, request);
    return viewer;
}

ViewerPointer ViewerForOutput(const ChartRequest& request) {
    RequireFirstThread();
    EnsureApplication();
    ViewerPointer viewer = LoadedViewer(request);
    viewer->setWindowTitle(viewer->GraphId() + QStringLiteral(" - Graph Viewer"));
    if (request.useConfig != UseConfig::No)
        LoadChartConfiguration(*viewer, request.useConfig == UseConfig::Yes);
    ApplySizeOfNewCharts(*viewer);
    return viewer;
}

} // namespace

void MakeGraph(const ChartRequest& request, const Variant& language) {
    RequireFirstThread();
    SetLanguageCode(language.ToInt16());
    SetQtTextsLanguage(QLatin1String(LanguageOrEnglish(LanguageCode()).locale));
    EnsureApplication();
    const ViewerPointer viewer = LoadedViewer(request);
    const HistoryRestarted history(viewer);
    viewer->setWindowTitle(LocalText(TextKey::ChartViewer));
    ComputeValueLabelFormat(request.data, request.rows, request.columns);
    if (request.useConfig != UseConfig::No) {
        LoadChartConfiguration(*viewer, request.useConfig == UseConfig::Yes);
        ApplySizeOfNewCharts(*viewer);
        viewer->Open();
    } else {
        ApplySizeOfNewCharts(*viewer);
        ApplyDefaultLook(*viewer);
    }
    viewer->SyncControlBar();
    TellWarnings(*viewer, viewer->ChartImage());
}

void PrintGraph(const ChartRequest& request) {
    const ViewerPointer viewer = ViewerForOutput(request);
    viewer->update();
    if (HostPrinter().isEmpty())
        PrintChart(viewer->ChartImage());
    else
        PrintChart(viewer->ChartImage(), HostPrinter());
    viewer->update();
    CloseViewer(viewer);
}

void SaveGraph(const ChartRequest& request, QString& fileName) {
    const ViewerPointer viewer = ViewerForOutput(request);
    SaveChartSnapshot(*viewer, viewer->ChartImage(), fileName, SizeOfPicture(*viewer));
    CloseViewer(viewer);
}

void KillGraph(const QString& graphId) {
    RequireFirstThread();
    CloseViewer(graphId);
}

} // namespace QmChart6

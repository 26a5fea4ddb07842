#include "viewer/ControlBarCommands.h"

#include "chart/ChartFunctions.h"
#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationStore.h"
#include "config/Viewer.h"
#include "dialogs/GraphConfiguration.h"
#include "viewer/ChartTypeList.h"
#include "viewer/ChartWarnings.h"
#include "viewer/LookChanges.h"
#include "viewer/PrintChart.h"
#include "viewer/ShownLook.h"

#include <QComboBox>

namespace QmChart6 {

namespace {

/// Sets a flag for as long as it lives.
class Raised {
public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    ~Raised() { flag_ = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& flag_;
};

constexpr Truth TruthOf(bool value) {
    return value ? True : False;
}

} // namespace

Chart& ControlBarCommands::Model() const {
    return shown_.chart.Model();
}

int ControlBarCommands::Selected() const {
    return ChartTypeAtIndex(bar_.TypeSelector()->currentIndex(), Model().ColumnCount(),
                            bar_.IsPressed(BarButton::ThreeD));
}

void ControlBarCommands::SetSelected(int type) {
    const ChartType wanted = ToChartType(type);
    bar_.Press(BarButton::ThreeD, Is3D(wanted));
    RefillChartTypeList();
    SelectIndex(IndexOfChartType(wanted, Model().ColumnCount()));
}

void ControlBarCommands::RefillChartTypeList() {
    QComboBox& selector = *bar_.TypeSelector();
    const int before = selector.currentIndex();
    selector.clear();
    selector.addItems(ChartTypeTexts(Model().ColumnCount(), bar_.IsPressed(BarButton::ThreeD)));
    SelectIndex(before >= 0 && before < selector.count() ? before : 0);
}

/// Selecting is choosing, whoever does it.
void ControlBarCommands::SelectIndex(int index) {
    bar_.TypeSelector()->setCurrentIndex(index);
    ChooseType();
}

void ControlBarCommands::ChooseType() {
    if (busy_) return;
    Chart& chart = Model();
    const ChartType before = chart.chartType();
    chart.SetChartType(ToChartType(Selected()));
    FitDataLabelLocations(chart);
    if (chart.ColumnCount() == 1) {
        // One column as a pie is one pie of its rows; nobody has to find that out by hand.
        bar_.Press(BarButton::Flip, KindOf(chart.chartType()).form == ChartForm::Pies);
        bar_.Button(BarButton::Flip)->setEnabled(false);
        SwitchSeriesInRows();
    }
    const bool changed = chart.chartType() != before;
    if (changed) shown_.modified = true;
    shown_.chart.Refresh();
    if (changed) TellWarnings(viewer_, shown_.chart);
}

void ControlBarCommands::SetMarks(std::int16_t lines, std::int16_t markers) {
    SetSeriesLines(Model(), TruthOf(lines != 0));
    SetSeriesMarkers(Model(), TruthOf(markers != 0));
    shown_.lines = lines;
    shown_.markers = markers;
    shown_.chart.Refresh();
}

void ControlBarCommands::ChooseTypeByHand() {
    const bool before = Model().chartType() == ChartType::XY2D;
    ChooseType();
    const bool now = Model().chartType() == ChartType::XY2D;
    if (busy_ || before == now) return;
    if (now && shown_.markers == 0) {
        marksBeforePoints_ = {shown_.lines, shown_.markers};
        SetMarks(0, 1);
    } else if (!now && marksBeforePoints_) {
        // What was changed by hand meanwhile stays.
        if (shown_.lines == 0 && shown_.markers == 1)
            SetMarks(marksBeforePoints_->first, marksBeforePoints_->second);
        marksBeforePoints_.reset();
    }
}

void ControlBarCommands::FollowChart() {
    if (bar_.isHidden()) return;
    const Raised busy(busy_);
    const Chart& chart = Model();
    SetSelected(static_cast<int>(chart.chartType()));
    bar_.Press(BarButton::Stack, shown_.stacked != 0);
    bar_.Press(BarButton::FullStack, shown_.fullStacked != 0);
    bar_.Press(BarButton::Legend, chart.ShowLegend);
    bar_.Press(BarButton::Flip, chart.Plot.DataSeriesInRow);
    AllowWhatCanBeSwitched();
}

void ControlBarCommands::Refresh() {
    if (bar_.isHidden()) return;
    FollowChart();
    shown_.chart.Refresh();
}

void ControlBarCommands::AllowWhatCanBeSwitched() {
    bar_.Button(BarButton::FullStack)->setEnabled(bar_.IsPressed(BarButton::Stack));
    bar_.Button(BarButton::Flip)->setEnabled(Model().ColumnCount() != 1);
}

void ControlBarCommands::Click(BarButton button) {
    if (busy_) return;
    Act(button);
    if (button >= BarButton::Load) return;
    shown_.modified = true;
    shown_.chart.Refresh();
}

void ControlBarCommands::Act(BarButton button) {
    switch (button) {
    case BarButton::TypeSelector:
    case BarButton::Separator:
        return;
    case BarButton::ThreeD:
        return RefillChartTypeList();
    case BarButton::Stack:
        return SwitchStacking();
    case BarButton::FullStack:
        return SwitchFullStacking();
    case BarButton::Flip:
        return SwitchSeriesInRows();
    case BarButton::Legend:
        return SetLegendVisible(Model(), TruthOf(bar_.IsPressed(button)));
    case BarButton::Load:
        LoadLook();
        shown_.modified = false;
        return;
    case BarButton::Save:
        SaveConfiguration(viewer_);
        shown_.modified = false;
        return;
    case BarButton::Print:
        return PrintChart(shown_.chart);
    }
}

void ControlBarCommands::LoadLook() {
    GraphConfiguration dialog(viewer_.Window());
    QObject::connect(&dialog, &GraphConfiguration::Written, [this] { changes_.EndStep(); });
    dialog.Execute(viewer_);
}

/// Shares of a whole are there only while there is a whole: without "Stack" there is no "100%".
void ControlBarCommands::SwitchStacking() {
    const bool stacked = bar_.IsPressed(BarButton::Stack);
    if (!stacked) {
        bar_.Press(BarButton::FullStack, false);
        SwitchFullStacking();
    }
    bar_.Button(BarButton::FullStack)->setEnabled(stacked);
    SetStacked(Model(), TruthOf(stacked));
    shown_.stacked = stacked ? 1 : 0;
}

void ControlBarCommands::SwitchFullStacking() {
    const bool on = bar_.IsPressed(BarButton::FullStack);
    SetFullStacked(Model(), TruthOf(on));
    shown_.fullStacked = on ? 1 : 0;
}

/// Stacking is off meanwhile, so that the series are made anew unstacked.
void ControlBarCommands::SwitchSeriesInRows() {
    const bool stacked = bar_.IsPressed(BarButton::Stack);
    if (stacked) Model().Stacking = false;
    SetSeriesInRows(Model(), TruthOf(bar_.IsPressed(BarButton::Flip)));
    if (stacked) Model().Stacking = true;
}

} // namespace QmChart6

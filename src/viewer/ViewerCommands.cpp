#include "viewer/ViewerCommands.h"

#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationStore.h"
#include "config/Viewer.h"
#include "desktop/CurrentDesktop.h"
#include "desktop/ShowErrors.h"
#include "dialogs/GraphConfigSave.h"
#include "viewer/ControlBarCommands.h"
#include "viewer/ElementEditing.h"
#include "viewer/KeysCard.h"
#include "viewer/LookChanges.h"
#include "viewer/PrintChart.h"
#include "viewer/ShownLook.h"
#include "viewer/Snapshot.h"
#include "viewer/ViewerMenu.h"
#include "viewer/ViewerToolBar.h"

#include <QShortcut>

#include <utility>

namespace QmChart6 {

namespace {

void SwitchControlBar(Viewer& viewer) {
    LookState look = viewer.Look();
    look.controlBar = !look.controlBar;
    viewer.Show(look);
}

} // namespace

ViewerCommands::ViewerCommands(const Parts& parts, Answer answer)
    : parts_(parts), answer_(std::move(answer)) {
    ConnectBar();
    ConnectMenu();
    ConnectChart();
    ConnectKeys();
}

void ViewerCommands::Do(const std::function<void()>& command) {
    answer_([&] { parts_.changes.Do([&] { ShowErrors(parts_.viewer.Window(), command); }); });
}

void ViewerCommands::Undo() {
    answer_([this] { ShowErrors(parts_.viewer.Window(), [this] { parts_.changes.Undo(); }); });
}

void ViewerCommands::Redo() {
    answer_([this] { ShowErrors(parts_.viewer.Window(), [this] { parts_.changes.Redo(); }); });
}

void ViewerCommands::ConnectBar() {
    connect(&parts_.tbControlBar, &ViewerToolBar::ButtonClicked, this, [this](BarButton button) {
        Do([&] { parts_.bar.Click(button); });
        if (button == BarButton::Load || button == BarButton::Save) parts_.changes.LookWasKept();
    });
    connect(&parts_.tbControlBar, &ViewerToolBar::TypeChosen, this,
            [this] { Do([this] { parts_.bar.ChooseTypeByHand(); }); });
}

void ViewerCommands::ConnectEntry(QAction* entry, const std::function<void()>& command) {
    connect(entry, &QAction::triggered, this, [this, command] { Do(command); });
}

void ViewerCommands::ConnectMenu() {
    const ViewerMenu& menu = parts_.mProperties;
    Viewer& viewer = parts_.viewer;
    ChartControl& chart = parts_.shown.chart;
    ConnectEntry(menu.optGenericProperties, [this] { parts_.editing.EditSelected(); });
    ConnectEntry(menu.optChart, [this] { parts_.editing.EditChart(); });
    ConnectEntry(menu.optControlBar, [&viewer] { SwitchControlBar(viewer); });
    ConnectEntry(menu.optPrint, [&chart] { PrintChart(chart); });
    ConnectEntry(menu.optPreview, [&chart] { PreviewChart(chart); });
    ConnectEntry(menu.optKeys, [&viewer] {
        KeysCard card(viewer.Window());
        CurrentDesktop().RunModal(card);
    });
    ConnectEntry(menu.optSaveBMP, [&viewer, &chart] {
        QString askForName;
        SaveChartSnapshot(viewer, chart, askForName);
    });
    ConnectEntry(menu.optCopy, [&chart] { chart.CopyToClipboard(); });
    // Other than the bar's buttons, the menu leaves a modified viewer modified.
    ConnectEntry(menu.optLoadConfig, [this] { parts_.bar.LoadLook(); });
    ConnectEntry(menu.optSaveConfig, [&viewer] { SaveConfiguration(viewer); });
    ConnectEntry(menu.optSaveConfigAs, [&viewer] { GraphConfigSave(viewer.Window()).Execute(viewer); });
}

void ViewerCommands::ConnectChart() {
    const ChartControl* chart = &parts_.shown.chart;
    connect(chart, &ChartControl::ContextMenuWanted, this, [this, chart](const QPoint& place) {
        parts_.mProperties.ShowFor(ElementEditing::Caption(chart->SelectedPart().part),
                                   chart->mapToGlobal(place));
    });
    connect(chart, &ChartControl::PartActivated, this, [this] { Do([this] { parts_.editing.Activate(); }); });
    connect(chart, &ChartControl::ViewTurned, this,
            [this](const View3d& before) { parts_.changes.Turned(before); });
    connect(chart, &ChartControl::PartMoved, this,
            [this](int part, const Location& before) { parts_.changes.Moved(part, before); });
}

void ViewerCommands::ConnectKeys() {
    const auto connectKey = [this](const char* keys, void (ViewerCommands::*command)()) {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), parts_.viewer.Window());
        connect(shortcut, &QShortcut::activated, this, command);
    };
    connectKey("Ctrl+Z", &ViewerCommands::Undo);
    connectKey("Ctrl+Shift+Z", &ViewerCommands::Redo);
    connectKey("Ctrl+Y", &ViewerCommands::Redo);
}

} // namespace QmChart6

// What the commands of a viewer's window do.
#include "viewer/GraphForm.h"

#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationStore.h"
#include "dialogs/GraphConfigSave.h"
#include "viewer/ControlBarCommands.h"
#include "viewer/ElementEditing.h"
#include "viewer/LookChanges.h"
#include "viewer/PrintChart.h"
#include "viewer/Snapshot.h"
#include "viewer/ViewerMenu.h"
#include "viewer/ViewerStatusBar.h"
#include "viewer/ViewerToolBar.h"

#include <QShortcut>
#include <QTimer>

namespace QmChart6 {

void GraphForm::ConnectCommands() {
    connect(timGraph_, &QTimer::timeout, this, [this] { sbGraph_->Panel(4).SetText({}); });
    connect(tbControlBar_, &ViewerToolBar::ButtonClicked, this, [this](BarButton button) {
        Do([&] { commands_->Click(button); });
        if (button == BarButton::Load || button == BarButton::Save) changes_->LookWasKept();
    });
    connect(tbControlBar_, &ViewerToolBar::TypeChosen, this,
            [this] { Do([this] { commands_->ChooseType(); }); });
    ConnectMenu();
    ConnectChart();
    ConnectKeys();
}

void GraphForm::ConnectMenu() {
    const auto connectEntry = [this](QAction* entry, std::function<void()> command) {
        connect(entry, &QAction::triggered, this, [this, command = std::move(command)] { Do(command); });
    };
    connectEntry(mProperties_->optGenericProperties, [this] { editing_->EditSelected(); });
    connectEntry(mProperties_->optChart, [this] { editing_->EditChart(); });
    connectEntry(mProperties_->optControlBar, [this] { SetControlBar(!ControlBar()); });
    connectEntry(mProperties_->optPrint, [this] { PrintChart(*this); });
    connectEntry(mProperties_->optSaveBMP, [this] {
        QString askForName;
        SaveChartSnapshot(*this, askForName);
    });
    connectEntry(mProperties_->optCopy, [this] { chartImage_->CopyToClipboard(); });
    // Other than the bar's buttons, the menu leaves a modified viewer modified.
    connectEntry(mProperties_->optLoadConfig, [this] { commands_->LoadLook(); });
    connectEntry(mProperties_->optSaveConfig, [this] { SaveConfiguration(*this); });
    connectEntry(mProperties_->optSaveConfigAs, [this] { GraphConfigSave(this).Execute(*this); });
}

void GraphForm::ConnectChart() {
    connect(chartImage_, &ChartControl::ContextMenuWanted, this, [this](const QPoint& place) {
        ShowMenu(chartImage_->mapToGlobal(place), ElementEditing::Caption(chartImage_->SelectedPart().part));
    });
    connect(chartImage_, &ChartControl::PartActivated, this,
            [this] { Do([this] { editing_->Activate(); }); });
    connect(chartImage_, &ChartControl::ViewTurned, this,
            [this](const View3d& before) { changes_->Turned(before); });
}

void GraphForm::ConnectKeys() {
    const auto connectKey = [this](const char* keys, void (GraphForm::*command)()) {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), this);
        connect(shortcut, &QShortcut::activated, this, command);
    };
    connectKey("Ctrl+Z", &GraphForm::Undo);
    connectKey("Ctrl+Shift+Z", &GraphForm::Redo);
    connectKey("Ctrl+Y", &GraphForm::Redo);
}

} // namespace QmChart6

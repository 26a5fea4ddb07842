// What the commands of a viewer's window do.
#include "viewer/GraphForm.h"

#include "chartcontrol/widget/ChartControl.h"
#include "config/ConfigurationStore.h"
#include "dialogs/GraphConfigSave.h"
#include "dialogs/GraphConfiguration.h"
#include "viewer/ControlBarCommands.h"
#include "viewer/PrintChart.h"
#include "viewer/Snapshot.h"
#include "viewer/ViewerMenu.h"
#include "viewer/ViewerStatusBar.h"
#include "viewer/ViewerToolBar.h"

#include <QTimer>

namespace QmChart6 {

void GraphForm::ConnectCommands() {
    connect(timGraph_, &QTimer::timeout, this, [this] { sbGraph_->Panel(4).SetText({}); });
    connect(tbControlBar_, &ViewerToolBar::ButtonClicked, this,
            [this](BarButton button) { Do([&] { commands_->Click(button); }); });
    connect(tbControlBar_, &ViewerToolBar::TypeChosen, this,
            [this] { Do([this] { commands_->ChooseType(); }); });
    const auto connectEntry = [this](QAction* entry, std::function<void()> command) {
        connect(entry, &QAction::triggered, this, [this, command = std::move(command)] { Do(command); });
    };
    connectEntry(mProperties_->optControlBar, [this] { SetControlBar(!ControlBar()); });
    connectEntry(mProperties_->optPrint, [this] { PrintChart(*this); });
    connectEntry(mProperties_->optSaveBMP, [this] {
        QString askForName;
        SaveChartSnapshot(*this, askForName);
    });
    connectEntry(mProperties_->optCopy, [this] { chartImage_->CopyToClipboard(); });
    // Other than the bar's buttons, the menu leaves a modified viewer modified.
    connectEntry(mProperties_->optLoadConfig, [this] { GraphConfiguration(this).Execute(*this); });
    connectEntry(mProperties_->optSaveConfig, [this] { SaveConfiguration(*this); });
    connectEntry(mProperties_->optSaveConfigAs, [this] { GraphConfigSave(this).Execute(*this); });

    // What comes with the dialogs for the chart's parts is there to be seen, not to be used.
    mProperties_->optGenericProperties->setEnabled(false);
    mProperties_->optChart->setEnabled(false);
}

} // namespace QmChart6

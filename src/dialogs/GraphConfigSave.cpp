#include "dialogs/GraphConfigSave.h"

#include "config/ConfigurationStore.h"
#include "config/Viewer.h"
#include "desktop/CurrentDesktop.h"
#include "dialogs/Captions.h"
#include "text/LocalText.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace QmChart6 {

namespace {

constexpr int NameWidth = 320; // logical pixels

} // namespace

GraphConfigSave::GraphConfigSave(QWidget* owner)
    : PropertyDialog(owner, Buttons::OkCancel), txtConfig_(new QLineEdit(this)) {
    setObjectName(QStringLiteral("GraphConfigSave"));
    setWindowTitle(WithDots(LocalText(TextKey::SaveConfigurationAs)));
    Describe(*txtConfig_, "txtConfig", LocalText(TextKey::ConfigurationName));
    txtConfig_->setMinimumWidth(NameWidth);
    Body().addWidget(txtConfig_);
    Finish();
    SetFirstText(*txtConfig_);
}

void GraphConfigSave::Execute(Viewer& viewer) {
    txtConfig_->setText(viewer.QmConfig());
    for (;;) {
        bool confirmed = false;
        RunLoop([&] { confirmed = Confirm(txtConfig_->text()); });
        if (confirmed) break;
        if (Cancelled()) return;
    }
    viewer.SetQmConfig(txtConfig_->text());
    SaveConfiguration(viewer);
}

bool GraphConfigSave::Confirm(const QString& name) {
    if (!ConfigurationExists(name)) return true;
    const Answer answer =
        CurrentDesktop().ShowMessage(this, WithName(LocalText(TextKey::ConfigurationExists), name),
                                     LocalText(TextKey::SaveConfigurationAs), MessageButtons::YesNo);
    return answer == Answer::Yes;
}

QString WithName(const QString& question, const QString& name) {
    const qsizetype place = question.indexOf(u'_');
    if (place < 0) return question + name;
    return question.left(place) + name + question.mid(place + 1);
}

} // namespace QmChart6

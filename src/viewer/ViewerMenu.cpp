#include "viewer/ViewerMenu.h"

#include "text/LocalText.h"

namespace QmChart6 {

namespace {

/// An ampersand in a text is a character to read, not a short cut.
QString ToBeRead(QString caption) {
    return caption.replace(u'&', QStringLiteral("&&"));
}

QAction* Entry(QMenu& menu, const char* name, const QString& caption) {
    QAction* entry = menu.addAction(ToBeRead(caption));
    entry->setObjectName(QLatin1String(name));
    return entry;
}

} // namespace

ViewerMenu::ViewerMenu(QWidget* parent) : QMenu(parent) {
    setObjectName(QStringLiteral("mProperties"));
    setTitle(LocalText(TextKey::GraphProperties));
    optGenericProperties = Entry(*this, "optGenericProperties", QString());
    NameElement({});
    optChart = Entry(*this, "optChart", LocalText(TextKey::GraphProperties));
    addSeparator();
    optControlBar = Entry(*this, "optControlBar", LocalText(TextKey::ControlBar));
    optControlBar->setCheckable(true);
    addSeparator();
    optSendTo = addMenu(LocalText(TextKey::SendTo));
    optSendTo->setObjectName(QStringLiteral("optSendTo"));
    optPrint = Entry(*optSendTo, "optPrint", LocalText(TextKey::Printer));
    optSaveBMP = Entry(*optSendTo, "optSaveBMP", LocalText(TextKey::BmpFile));
    optCopy = Entry(*optSendTo, "optCopy", LocalText(TextKey::Clipboard));
    addSeparator();
    optLoadConfig = Entry(*this, "optLoadConfig", LocalText(TextKey::LoadConfiguration));
    optSaveConfig = Entry(*this, "optSaveConfig", LocalText(TextKey::SaveConfiguration));
    optSaveConfigAs =
        Entry(*this, "optSaveConfigAs", LocalText(TextKey::SaveConfigurationAs) + QStringLiteral("..."));
}

void ViewerMenu::ShowFor(const QString& caption, const QPoint& globalPlace) {
    NameElement(caption);
    popup(globalPlace);
}

void ViewerMenu::NameElement(const QString& caption) {
    optGenericProperties->setText(ToBeRead(caption));
    optGenericProperties->setVisible(!caption.isEmpty());
}

} // namespace QmChart6

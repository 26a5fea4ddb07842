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
    setTitle(LocalText(8));
    optGenericProperties = Entry(*this, "optGenericProperties", QString());
    NameElement({});
    optChart = Entry(*this, "optChart", LocalText(8));
    addSeparator();
    optControlBar = Entry(*this, "optControlBar", LocalText(9));
    optControlBar->setCheckable(true);
    addSeparator();
    optSendTo = addMenu(LocalText(10));
    optSendTo->setObjectName(QStringLiteral("optSendTo"));
    optPrint = Entry(*optSendTo, "optPrint", LocalText(11));
    optSaveBMP = Entry(*optSendTo, "optSaveBMP", LocalText(12));
    optCopy = Entry(*optSendTo, "optCopy", LocalText(13));
    addSeparator();
    optLoadConfig = Entry(*this, "optLoadConfig", LocalText(100));
    optSaveConfig = Entry(*this, "optSaveConfig", LocalText(14));
    optSaveConfigAs = Entry(*this, "optSaveConfigAs", LocalText(101) + QStringLiteral("..."));
}

void ViewerMenu::NameElement(const QString& caption) {
    optGenericProperties->setText(ToBeRead(caption));
    optGenericProperties->setVisible(!caption.isEmpty());
}

} // namespace QmChart6

#include "viewer/ViewerMenu.h"

#include "dialogs/Mnemonics.h"
#include "text/LocalHint.h"
#include "text/LocalText.h"

namespace QmChart6 {

namespace {

QAction* Entry(QMenu& menu, const char* name) {
    QAction* entry = menu.addAction(QString());
    entry->setObjectName(QLatin1String(name));
    return entry;
}

/// A key that does in the whole window what the entry does, and is shown beside it.
void GiveKey(QWidget* window, QAction& entry, const char* key) {
    entry.setShortcut(QKeySequence(QLatin1String(key)));
    entry.setShortcutVisibleInContextMenu(true);
    if (window != nullptr) window->addAction(&entry);
}

} // namespace

ViewerMenu::ViewerMenu(QWidget* parent) : QMenu(parent) {
    setObjectName(QStringLiteral("mProperties"));
    setTitle(LocalText(TextKey::GraphProperties));
    const auto add = [this](QMenu& menu, const char* name, const QString& caption) {
        QAction* entry = Entry(menu, name);
        captions_[entry] = caption;
        return entry;
    };
    const QString dots = QStringLiteral("...");
    optGenericProperties = add(*this, "optGenericProperties", QString());
    optChart = add(*this, "optChart", LocalText(TextKey::GraphProperties));
    addSeparator();
    optControlBar = add(*this, "optControlBar", LocalText(TextKey::ControlBar));
    optControlBar->setCheckable(true);
    addSeparator();
    optSendTo = addMenu(QString());
    optSendTo->setObjectName(QStringLiteral("optSendTo"));
    captions_[optSendTo->menuAction()] = LocalText(TextKey::SendTo);
    optPrint = add(*optSendTo, "optPrint", LocalText(TextKey::Printer));
    optSaveBMP = add(*optSendTo, "optSaveBMP", LocalText(TextKey::BmpFile));
    optCopy = add(*optSendTo, "optCopy", LocalText(TextKey::Clipboard));
    optSendTo->addSeparator();
    optPreview = add(*optSendTo, "optPreview", LocalHint(Hint::PrintPreview) + dots);
    addSeparator();
    optLoadConfig = add(*this, "optLoadConfig", LocalText(TextKey::LoadConfiguration));
    optSaveConfig = add(*this, "optSaveConfig", LocalText(TextKey::SaveConfiguration));
    optSaveConfigAs = add(*this, "optSaveConfigAs", LocalText(TextKey::SaveConfigurationAs) + dots);
    addSeparator();
    optKeys = add(*this, "optKeys", LocalHint(Hint::KeysAndMouse) + dots);
    GiveKey(parent, *optPrint, "Ctrl+P");
    GiveKey(parent, *optSaveBMP, "Ctrl+S");
    GiveKey(parent, *optCopy, "Ctrl+C");
    GiveKey(parent, *optKeys, "F1");
    NameElement({});
}

void ViewerMenu::ShowFor(const QString& caption, const QPoint& globalPlace) {
    NameElement(caption);
    popup(globalPlace);
}

void ViewerMenu::NameElement(const QString& caption) {
    captions_[optGenericProperties] = caption;
    optGenericProperties->setVisible(!caption.isEmpty());
    GiveMnemonics();
}

void ViewerMenu::GiveMnemonics() {
    for (QMenu* menu : {static_cast<QMenu*>(this), optSendTo}) {
        QList<QAction*> entries;
        Captions captions;
        for (QAction* entry : menu->actions()) {
            const auto caption = captions_.find(entry);
            if (caption == captions_.end() || !entry->isVisible()) continue;
            entries.append(entry);
            captions.always.append(caption->second);
        }
        const QStringList marked = WithMnemonics(captions).always;
        for (qsizetype i = 0; i < entries.size(); ++i) entries[i]->setText(marked[i]);
    }
}

} // namespace QmChart6

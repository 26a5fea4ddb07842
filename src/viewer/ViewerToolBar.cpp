#include "viewer/ViewerToolBar.h"

#include "base/Units.h"
#include "text/LocalText.h"
#include "viewer/BarIcon.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QToolButton>

/// A static library's resources are only there once they are asked for, from outside any namespace.
static void LoadViewerResources() {
    Q_INIT_RESOURCE(viewer);
}

namespace QmChart6 {

namespace {

constexpr int SelectorWidth = 2500; // twips
constexpr int IconSize = 24;        // logical pixels, as the icons are drawn

} // namespace

ViewerToolBar::ViewerToolBar(QWidget* parent) : QToolBar(parent) {
    LoadViewerResources();
    setObjectName(QStringLiteral("tbControlBar"));
    setMovable(false);
    setFloatable(false);
    setIconSize({IconSize, IconSize});
    AddTypeSelector();
    AddButton(QStringLiteral("3D"), TextKey::In3D, true);
    AddButton(QStringLiteral("Stack"), TextKey::Stack, true);
    AddButton(QStringLiteral("100%"), TextKey::FullStack, true);
    AddButton(QStringLiteral("Flip"), TextKey::Flip, true);
    AddButton(QStringLiteral("Legend"), TextKey::Legend, true);
    addSeparator();
    AddButton(QStringLiteral("Load"), TextKey::LoadConfiguration, false);
    AddButton(QStringLiteral("Save"), TextKey::SaveConfiguration, false);
    AddButton(QStringLiteral("Print"), TextKey::Print, false);
    for (int number = static_cast<int>(BarButton::ThreeD); number <= actions().size(); ++number) {
        const auto button = static_cast<BarButton>(number);
        connect(Button(button), &QAction::triggered, this, [this, button] { Q_EMIT ButtonClicked(button); });
    }
    connect(cbType_, &QComboBox::activated, this, &ViewerToolBar::TypeChosen);
    FollowPalette();
}

void ViewerToolBar::AddTypeSelector() {
    auto* place = new QWidget(this);
    place->setFixedWidth(PixelsOfTwips(SelectorWidth));
    auto* row = new QHBoxLayout(place);
    row->setContentsMargins(2, 2, 6, 2);
    cbType_ = new QComboBox(place);
    cbType_->setObjectName(QStringLiteral("cbType"));
    cbType_->setToolTip(LocalText(TextKey::ChartType));
    cbType_->setAccessibleName(LocalText(TextKey::ChartType));
    row->addWidget(cbType_);
    addWidget(place);
}

void ViewerToolBar::AddButton(const QString& key, TextKey textKey, bool check) {
    const QString text = LocalText(textKey);
    QAction* action = addAction(text);
    action->setObjectName(key);
    action->setToolTip(text);
    action->setCheckable(check);
    QWidget* button = widgetForAction(action);
    button->setObjectName(key);
    button->setAccessibleName(text);
    button->installEventFilter(this);
}

/// A disabled button swallows clicks; a right one is for the menu all the same, and so for whoever shows it.
bool ViewerToolBar::eventFilter(QObject* watched, QEvent* event) {
    const auto* button = qobject_cast<const QWidget*>(watched);
    if (event->type() == QEvent::MouseButtonRelease && button != nullptr && !button->isEnabled()) {
        const auto* release = static_cast<const QMouseEvent*>(event);
        if (release->button() == Qt::RightButton) {
            QMouseEvent passed(QEvent::MouseButtonRelease, button->mapTo(this, release->position()),
                               release->globalPosition(), release->button(), release->buttons(),
                               release->modifiers());
            QCoreApplication::sendEvent(this, &passed);
        }
    }
    return QToolBar::eventFilter(watched, event);
}

void ViewerToolBar::changeEvent(QEvent* event) {
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) FollowPalette();
}

void ViewerToolBar::showEvent(QShowEvent* event) {
    QToolBar::showEvent(event);
    // Without Qt's SVG plugin there are no pictures, and the buttons show their texts.
    if (CanDrawBarIcons()) return;
    for (QAction* action : actions()) action->setIcon({});
}

void ViewerToolBar::FollowPalette() {
    for (QAction* action : actions()) {
        if (action->isSeparator() || action->objectName().isEmpty()) continue;
        QString file = action->objectName();
        file.remove(u'%');
        action->setIcon(BarIcon(QStringLiteral(":/qmchart6/icons/%1.svg").arg(file), palette()));
    }
}

} // namespace QmChart6

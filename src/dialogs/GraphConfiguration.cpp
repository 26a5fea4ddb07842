#include "dialogs/GraphConfiguration.h"

#include "config/ConfigurationStore.h"
#include "config/Viewer.h"
#include "desktop/CurrentDesktop.h"
#include "dialogs/Captions.h"
#include "dialogs/NamesList.h"
#include "text/LocalHint.h"
#include "text/LocalText.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTextDocument>
#include <QVBoxLayout>

namespace QmChart6 {

namespace {

constexpr int ListWidth = 300; // logical pixels
constexpr int ListHeight = 200;

QCheckBox* NewCheckBox(QWidget* parent, const char* name, TextKey textKey) {
    auto* box = new QCheckBox(LocalText(textKey), parent);
    Describe(*box, name, LocalText(textKey));
    return box;
}

/// A name that looks like markup is still only a name.
QString AsToolTip(const QString& name) {
    return Qt::mightBeRichText(name) ? Qt::convertFromPlainText(name) : name;
}

/// A name may hold line ends; the list has one line for each.
QString OnOneLine(QString name) {
    return name.replace(u'\n', QChar(0x2424)).replace(u'\r', QChar(0x240d));
}

} // namespace

GraphConfiguration::GraphConfiguration(QWidget* owner) : PropertyDialog(owner, Buttons::OkCancelApply) {
    setObjectName(QStringLiteral("GraphConfiguration"));
    setWindowTitle(LocalText(TextKey::LoadConfiguration));
    MakeList();
    MakeOptions();
    Finish();
}

void GraphConfiguration::MakeList() {
    lstConfig_ = new NamesList(this);
    lstConfig_->setObjectName(QStringLiteral("lstConfig"));
    lstConfig_->setMinimumSize(ListWidth, ListHeight);
    auto* lblAvailable =
        NewLabel(this, "lblAvailable", LocalText(TextKey::AvailableConfigurations), *lstConfig_);
    btnDelete_ = new QPushButton(LocalText(TextKey::Delete), this);
    Describe(*btnDelete_, "btnDelete", LocalText(TextKey::Delete));
    connect(lstConfig_, &QListWidget::itemDoubleClicked, this, &GraphConfiguration::accept);
    connect(lstConfig_, &QListWidget::itemSelectionChanged, this, &GraphConfiguration::FollowSelection);
    On(btnDelete_, &QPushButton::clicked, [this] { Delete(); });
    auto* deleteKey = new QShortcut(QKeySequence::Delete, lstConfig_);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, btnDelete_, &QPushButton::click);

    auto* beside = new QVBoxLayout;
    beside->addWidget(btnDelete_);
    beside->addStretch(1);
    auto* row = new QHBoxLayout;
    row->addWidget(lstConfig_, 1);
    row->addLayout(beside);
    Body().addWidget(lblAvailable);
    Body().addLayout(row, 1);
    MakeHint();
}

/// Keeps its room when it has nothing to say, so that nothing moves under the pointer.
void GraphConfiguration::MakeHint() {
    lblHint_ = new QLabel(LocalHint(Hint::NothingChosen), this);
    lblHint_->setObjectName(QStringLiteral("lblHint"));
    lblHint_->setTextFormat(Qt::PlainText);
    lblHint_->setWordWrap(true);
    QSizePolicy keepsRoom = lblHint_->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    lblHint_->setSizePolicy(keepsRoom);
    Body().addWidget(lblHint_);
}

void GraphConfiguration::MakeOptions() {
    chkTitles_ = NewCheckBox(this, "chkTitles", TextKey::LoadTitles);
    chkDefault_ = NewCheckBox(this, "chkDefault", TextKey::MakeDefaultConfiguration);
    Body().addWidget(chkTitles_);
    Body().addWidget(chkDefault_);
}

void GraphConfiguration::Execute(Viewer& viewer) {
    viewer_ = &viewer;
    FillList();
    lstConfig_->setFocus();
    RunLoop([this] { Load(); });
}

void GraphConfiguration::FillList() {
    const ConfigurationList list = FillConfigurationList(viewer_->QmConfig());
    lstConfig_->clear();
    for (const QString& name : list.names) {
        auto* item = new QListWidgetItem(OnOneLine(name), lstConfig_);
        item->setData(Qt::UserRole, name);
        item->setToolTip(AsToolTip(name));
    }
    if (list.selected >= 0) {
        lstConfig_->setCurrentRow(list.selected);
        lstConfig_->scrollToItem(lstConfig_->currentItem(), QAbstractItemView::PositionAtCenter);
    }
    FollowSelection();
}

void GraphConfiguration::FollowSelection() {
    const bool selected = !lstConfig_->selectedItems().isEmpty();
    btnDelete_->setEnabled(selected);
    lblHint_->setVisible(!selected && lstConfig_->count() > 0);
}

QString GraphConfiguration::Selected() const {
    const QList<QListWidgetItem*> selected = lstConfig_->selectedItems();
    return selected.isEmpty() ? QString() : selected.front()->data(Qt::UserRole).toString();
}

void GraphConfiguration::Load() {
    if (lstConfig_->count() == 0) return;
    LoadConfiguration(*viewer_, Selected(), chkTitles_->isChecked());
    if (chkDefault_->isChecked()) BindChartToConfiguration(*viewer_, Selected());
    viewer_->SetStatus(LocalText(TextKey::ConfigurationLoaded));
}

void GraphConfiguration::Delete() {
    const QString name = Selected();
    const Answer answer =
        CurrentDesktop().ShowMessage(this, LocalText(TextKey::DeleteConfiguration) + u' ' + name + u'?',
                                     LocalText(TextKey::Delete), MessageButtons::YesNoByDefault);
    if (answer != Answer::Yes) return;
    DeleteConfiguration(name);
    FillList();
}

} // namespace QmChart6

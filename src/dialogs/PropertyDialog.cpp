#include "dialogs/PropertyDialog.h"

#include "base/Units.h"
#include "desktop/CurrentDesktop.h"
#include "dialogs/FootButton.h"
#include "dialogs/Mnemonics.h"
#include "text/LocalText.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <array>

namespace QmChart6 {

namespace {

// A form ends this far beyond its last button, frame included, in twips.
constexpr int BeyondButtonRight = 240;
constexpr int BeyondButtonBelow = 420;
constexpr int Margin = 8; // logical pixels, left and above

QPushButton* AddButton(QDialogButtonBox& box, const char* name, TextKey textKey,
                       QDialogButtonBox::ButtonRole role) {
    const QString text = LocalText(textKey);
    auto* button = new FootButton(text, &box);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(text);
    box.addButton(button, role);
    return button;
}

/// Where a window stands that belongs to another: in its middle, or beside, above or below it where its
/// middle would hide much of it; all on the screen.
QPoint PlaceBy(const QRect& owner, const QRect& room, QSize frame) {
    const auto onScreen = [&](QPoint place) {
        return QPoint(std::max(room.left(), std::min(place.x(), room.right() + 1 - frame.width())),
                      std::max(room.top(), std::min(place.y(), room.bottom() + 1 - frame.height())));
    };
    const QPoint middle = owner.center() - QPoint(frame.width() / 2, frame.height() / 2);
    const std::array places{onScreen({owner.right() + 1, middle.y()}),
                            onScreen({owner.left() - frame.width(), middle.y()}),
                            onScreen({middle.x(), owner.bottom() + 1}),
                            onScreen({middle.x(), owner.top() - frame.height()}), onScreen(middle)};
    const auto hidden = [&](QPoint place) {
        const QRect both = QRect(place, frame).intersected(owner);
        return both.isEmpty() ? 0 : both.width() * both.height();
    };
    const QPoint best = *std::min_element(places.begin(), places.end(), [&](QPoint left, QPoint right) {
        return hidden(left) < hidden(right);
    });
    constexpr double Much = 1.0 / 3;
    return hidden(places.back()) > Much * owner.width() * owner.height() ? best : places.back();
}

} // namespace

PropertyDialog::PropertyDialog(QWidget* owner, Buttons buttons)
    : owner_(owner), body_(new QVBoxLayout), buttonBox_(new QDialogButtonBox(this)) {
    // Not a child of its owner: a host may delete the owner while the dialog still waits for an answer.
    setAttribute(Qt::WA_QuitOnClose, false);
    AddButtons(buttons);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, PixelsOfTwips(BeyondButtonRight - NominalFrameWidth),
                               PixelsOfTwips(BeyondButtonBelow - NominalFrameHeight));
    column->setSpacing(Margin);
    column->addLayout(body_, 1);
    column->addWidget(buttonBox_);
    if (owner_ != nullptr) {
        owner_->window()->installEventFilter(this);
        connect(owner_, &QObject::destroyed, this, &PropertyDialog::OwnerWentAway);
    }
}

PropertyDialog::~PropertyDialog() {
    qApp->removeEventFilter(this);
}

void PropertyDialog::AddButtons(Buttons buttons) {
    btnOK_ = AddButton(*buttonBox_, "btnOK", TextKey::Ok, QDialogButtonBox::AcceptRole);
    btnCancel_ = AddButton(*buttonBox_, "btnCancel", TextKey::Cancel, QDialogButtonBox::RejectRole);
    connect(btnOK_, &QPushButton::clicked, this, &PropertyDialog::accept);
    connect(btnCancel_, &QPushButton::clicked, this, &PropertyDialog::reject);
    if (buttons == Buttons::OkCancelApply) {
        const QPushButton* apply =
            AddButton(*buttonBox_, "btnApply", TextKey::Apply, QDialogButtonBox::ApplyRole);
        connect(apply, &QPushButton::clicked, this, &PropertyDialog::Apply);
    }
}

void PropertyDialog::Finish() {
    GiveMnemonics(*this);
    for (QTabWidget* tabs : findChildren<QTabWidget*>()) {
        tabs->setAccessibleName(windowTitle());
        tabs->tabBar()->setAccessibleName(windowTitle());
        tabs->setFocusPolicy(Qt::NoFocus); // its bar takes the focus
        tabs->tabBar()->setFocusPolicy(Qt::TabFocus);
    }
    for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
    btnOK_->setDefault(true);
}

void PropertyDialog::RunLoop(const std::function<void()>& writeBack) {
    applyPressed_ = true;
    while (applyPressed_) {
        cancelled_ = true; // what counts where the dialog is left in no way at all
        CurrentDesktop().RunModal(*this);
        if (cancelled_) {
            applyPressed_ = false;
            return;
        }
        writeBack();
        Q_EMIT Written();
    }
}

void PropertyDialog::accept() {
    cancelled_ = false;
    applyPressed_ = false;
    QDialog::accept();
}

void PropertyDialog::reject() {
    cancelled_ = true;
    applyPressed_ = false;
    QDialog::reject();
}

void PropertyDialog::Apply() {
    cancelled_ = false;
    applyPressed_ = true;
    QDialog::accept();
}

void PropertyDialog::OwnerWentAway() {
    for (QDialog* opened : findChildren<QDialog*>())
        if (opened->isWindow()) opened->reject();
    if (isVisible()) reject();
    // OK or Apply may have been pressed, and nothing be written yet.
    cancelled_ = true;
    applyPressed_ = false;
}

bool PropertyDialog::eventFilter(QObject* watched, QEvent* event) {
    // A window that is minimized is hidden by the desktop, not by the program; its dialog goes with it.
    if (event->type() == QEvent::Hide && !event->spontaneous() && owner_ != nullptr &&
        watched == owner_->window())
        OwnerWentAway();
    if (event->type() == QEvent::KeyPress && TakesKey(watched, event)) return true;
    return QDialog::eventFilter(watched, event);
}

/// Keys come here before they reach the control that has the focus.
bool PropertyDialog::TakesKey(QObject* watched, QEvent* event) {
    const auto* control = qobject_cast<QWidget*>(watched);
    if (control == nullptr || control->window() != this || QApplication::activePopupWidget() != nullptr)
        return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    if (TurnPage(*key)) return true;
    if ((key->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        btnOK_->click();
        return true;
    case Qt::Key_Escape:
        btnCancel_->click();
        return true;
    default:
        return false;
    }
}

bool PropertyDialog::TurnPage(const QKeyEvent& key) {
    if ((key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != Qt::ControlModifier) return false;
    const bool back = key.key() == Qt::Key_Backtab || (key.modifiers() & Qt::ShiftModifier) != 0;
    auto* tabs = findChild<QTabWidget*>();
    if (tabs == nullptr || (key.key() != Qt::Key_Tab && key.key() != Qt::Key_Backtab)) return false;
    tabs->setCurrentIndex((tabs->currentIndex() + (back ? tabs->count() - 1 : 1)) % tabs->count());
    return true;
}

/// The first control of the page has the focus, not the tab above it; of options the chosen one.
void PropertyDialog::FocusOnPage() {
    const auto* tabs = findChild<QTabWidget*>();
    if (tabs == nullptr) return;
    QWidget* page = tabs->currentWidget();
    for (QWidget* next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain()) {
        const auto* option = qobject_cast<const QRadioButton*>(next);
        const bool isChosen = option == nullptr || option->isChecked();
        if (!isChosen || !page->isAncestorOf(next) || !next->isEnabled() ||
            (next->focusPolicy() & Qt::TabFocus) == 0)
            continue;
        next->setFocus(Qt::OtherFocusReason);
        return;
    }
}

void PropertyDialog::showEvent(QShowEvent* event) {
    qApp->installEventFilter(this);
    if (!shownBefore_) {
        shownBefore_ = true;
        PlaceByOwner();
        OrderButtonsAsSeen();
        FocusOnPage();
        if (firstText_ != nullptr && firstText_->isEnabled()) {
            firstText_->selectAll();
            firstText_->setFocus(Qt::OtherFocusReason);
        }
    }
    QDialog::showEvent(event);
}

void PropertyDialog::hideEvent(QHideEvent* event) {
    qApp->removeEventFilter(this);
    QDialog::hideEvent(event);
}

QSize PropertyDialog::RoomOnScreen() const {
    const QWidget* by = owner_ != nullptr ? owner_->window() : this;
    return by->screen()->availableSize() -
           QSize(PixelsOfTwips(NominalFrameWidth), PixelsOfTwips(NominalFrameHeight));
}

void PropertyDialog::PlaceByOwner() {
    if (owner_ == nullptr || !owner_->window()->isVisible()) return;
    const QWidget* by = owner_->window();
    if (windowHandle() != nullptr) windowHandle()->setTransientParent(by->windowHandle());
    const QSize frame = size() + QSize(PixelsOfTwips(NominalFrameWidth), PixelsOfTwips(NominalFrameHeight));
    move(PlaceBy(by->frameGeometry(), by->screen()->availableGeometry(), frame));
}

/// Desktops differ in the order of a dialog's buttons; Tab goes through them as they stand.
void PropertyDialog::OrderButtonsAsSeen() {
    QList<QPushButton*> buttons = buttonBox_->findChildren<QPushButton*>();
    std::sort(buttons.begin(), buttons.end(),
              [](const QPushButton* left, const QPushButton* right) { return left->x() < right->x(); });
    if (isRightToLeft()) std::reverse(buttons.begin(), buttons.end());
    for (qsizetype at = 1; at < buttons.size(); ++at) setTabOrder(buttons[at - 1], buttons[at]);
}

} // namespace QmChart6

#pragma once

#include "desktop/ShowErrors.h"

#include <QDialog>
#include <QPointer>

#include <functional>
#include <utility>

class QDialogButtonBox;
class QKeyEvent;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace QmChart6 {

/// A modal dialog that edits a copy of some settings and writes them back on OK and on Apply.
///
/// Enter acts as OK, Escape as Cancel and Ctrl+Tab turns the pages wherever the focus is, but while a list
/// hangs open. The dialog may
/// outlive its owner: when the owner's window is hidden or goes away, the dialog ends as cancelled, and so
/// does any that it opened.
class PropertyDialog : public QDialog {
    Q_OBJECT

public:
    enum class Buttons { OkCancel, OkCancelApply };

    ~PropertyDialog() override;

    /// How the dialog was left the last time; true until it was left at all.
    [[nodiscard]] bool Cancelled() const { return cancelled_; }
    /// The dialog is to be shown once more.
    [[nodiscard]] bool ApplyPressed() const { return applyPressed_; }

    void reject() override;
    void accept() override;

Q_SIGNALS:
    /// The settings were written back, by OK or Apply.
    void Written();

protected:
    /// `owner` may be null; it does not own the dialog, which lies where its maker puts it.
    PropertyDialog(QWidget* owner, Buttons buttons);

    /// Where the dialog's own controls go, above the buttons.
    [[nodiscard]] QVBoxLayout& Body() { return *body_; }
    [[nodiscard]] QDialogButtonBox& ButtonBox() { return *buttonBox_; }
    /// Ends the making of a dialog: gives captions their Alt keys and the tabs their name, and makes OK the
    /// only default button.
    void Finish();
    /// The text box that has the focus when the dialog is first shown, all selected, if it is enabled.
    void SetFirstText(QLineEdit& text) { firstText_ = &text; }

    /// Does what a control's signal asks for. Nobody above an event can take an error, so it is shown.
    template<class Sender, class Signal>
    void On(Sender* sender, Signal signal, std::function<void()> handler) {
        connect(sender, signal, this, [this, handler = std::move(handler)] { ShowErrors(this, handler); });
    }

    /// The size that the dialog may have within its frame on its owner's screen, in logical pixels.
    [[nodiscard]] QSize RoomOnScreen() const;

    /// Shows the dialog, again and again while Apply is pressed. `writeBack` runs after each OK and Apply;
    /// what it raises ends the loop.
    void RunLoop(const std::function<void()>& writeBack);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void AddButtons(Buttons buttons);
    void Apply();
    void OwnerWentAway();
    void PlaceByOwner();
    void FocusOnPage();
    [[nodiscard]] bool TurnPage(const QKeyEvent& key);
    void OrderButtonsAsSeen();
    [[nodiscard]] bool TakesKey(QObject* watched, QEvent* event);

    QPointer<QWidget> owner_;
    QVBoxLayout* body_;
    QDialogButtonBox* buttonBox_;
    QPushButton* btnOK_ = nullptr;
    QPushButton* btnCancel_ = nullptr;
    QLineEdit* firstText_ = nullptr;
    bool shownBefore_ = false;
    bool cancelled_ = true;
    bool applyPressed_ = false;
};

} // namespace QmChart6

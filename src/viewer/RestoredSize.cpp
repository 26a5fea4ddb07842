#include "viewer/RestoredSize.h"

#include <QEvent>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindowStateChangeEvent>

#include <utility>

namespace QmChart6 {

namespace {

// What a frame round a maximized window, and a panel, take of the screen at most, in logical pixels.
constexpr int FrameWidth = 40;
constexpr int FrameHeight = 120;
/// For so long after a window was maximized a desktop may still tell that it is not. Milliseconds.
constexpr int Doubt = 500;

} // namespace

RestoredSize::RestoredSize(QWidget* window) : QObject(window), window_(window), last_(window->size()) {
    window->installEventFilter(this);
}

bool RestoredSize::IsMaximized() const {
    return window_->isMaximized();
}

bool RestoredSize::FillsTheScreen(QSize size) const {
    const QSize room = window_->screen()->availableSize();
    return size.width() + FrameWidth >= room.width() && size.height() + FrameHeight >= room.height();
}

QSize RestoredSize::Get() const {
    if (!IsMaximized() && !restoring_) return window_->size();
    return wished_.value_or(last_);
}

void RestoredSize::Set(QSize size) {
    if (IsMaximized() || restoring_)
        wished_ = size; // a maximized window that is given a size is neither one nor the other
    else
        window_->resize(size);
}

bool RestoredSize::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_ && event->type() == QEvent::Resize) FollowSize();
    if (watched == window_ && event->type() == QEvent::WindowStateChange) {
        const auto* change = static_cast<QWindowStateChangeEvent*>(event);
        FollowState((change->oldState() & Qt::WindowMaximized) != 0);
    }
    return QObject::eventFilter(watched, event);
}

void RestoredSize::FollowSize() {
    if (IsMaximized()) return;
    restoring_ = restoring_ && FillsTheScreen(window_->size());
    if (restoring_) return;
    if (window_->size() != last_) beforeLast_ = std::exchange(last_, window_->size());
    GrantWishSoon(0);
}

void RestoredSize::FollowState(bool wasMaximized) {
    if (IsMaximized() == wasMaximized) return;
    if (wasMaximized) {
        if (std::exchange(again_, false) && maximized_.elapsed() < Doubt) {
            QTimer::singleShot(
                0, this, [this] { window_->setWindowState(window_->windowState() | Qt::WindowMaximized); });
            return;
        }
        restoring_ = FillsTheScreen(window_->size());
        GrantWishSoon(0);
        return;
    }
    again_ = std::exchange(restoring_, false);
    maximized_.start();
    // The larger size was told first, as if it were one of a window that is not maximized.
    if (FillsTheScreen(last_) && beforeLast_.isValid() && !FillsTheScreen(beforeLast_)) last_ = beforeLast_;
}

void RestoredSize::GrantWishSoon(int milliseconds) {
    if (wished_) QTimer::singleShot(milliseconds, this, [this] { GrantWish(); });
}

void RestoredSize::GrantWish() {
    if (!wished_ || IsMaximized() || restoring_) return;
    if (maximized_.isValid() && maximized_.elapsed() < Doubt) {
        GrantWishSoon(Doubt);
        return;
    }
    window_->resize(*wished_);
    wished_.reset();
}

} // namespace QmChart6

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QSize>

#include <optional>

class QWidget;

namespace QmChart6 {

/// The size that a window has while it is not maximized, in logical pixels, also while it is maximized or the
/// desktop has not yet answered a wish to restore it. No order is taken for granted in what desktops tell of
/// a window's state and of its size, and nothing is asked of one in the middle of its answer.
class RestoredSize : public QObject {
public:
    /// The window owns it.
    explicit RestoredSize(QWidget* window);

    [[nodiscard]] QSize Get() const;
    /// Gives the window another such size: at once, or when it is restored.
    void Set(QSize size);

    /// The program itself asks for another state from here on.
    void Asked() { again_ = false; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool IsMaximized() const;
    [[nodiscard]] bool FillsTheScreen(QSize size) const;
    void FollowSize();
    void FollowState(bool wasMaximized);
    void GrantWish();
    void GrantWishSoon(int milliseconds);

    QWidget* window_;
    QSize last_;
    QSize beforeLast_;
    /// The window was restored, and still is as large as before.
    bool restoring_ = false;
    /// The window was maximized again before it was restored; a desktop may take that for no wish at all.
    bool again_ = false;
    std::optional<QSize> wished_;
    QElapsedTimer maximized_;
};

} // namespace QmChart6

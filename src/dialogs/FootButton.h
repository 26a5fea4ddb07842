#pragma once

#include <QPushButton>

namespace QmChart6 {

/// A button of a dialog's last row. The form ends right below such a button, so that the button bears the
/// room below itself, as a strip that is neither painted nor clicked.
class FootButton : public QPushButton {
public:
    /// The strip's height in logical pixels.
    static constexpr int FootHeight = 8;

    using QPushButton::QPushButton;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& place) const override;
};

} // namespace QmChart6

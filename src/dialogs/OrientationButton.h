#pragma once

#include "chartcontrol/model/Enumerations.h"

#include <QPushButton>

namespace QmChart6 {

/// A button that stands for a text orientation and shows it. The chosen one is black.
class OrientationButton : public QPushButton {
public:
    OrientationButton(Orientation orientation, QWidget* parent);

    /// Black while the button is the chosen one, otherwise the desktop's colour for buttons.
    [[nodiscard]] QColor BackColor() const;

    [[nodiscard]] QSize sizeHint() const override { return {44, 44}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Orientation orientation_;
};

} // namespace QmChart6

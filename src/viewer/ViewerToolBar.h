#pragma once

#include "text/TextKey.h"

#include <QToolBar>

class QComboBox;

namespace QmChart6 {

/// The places on a viewer's control bar, from 1.
enum class BarButton {
    TypeSelector = 1,
    ThreeD = 2,
    Stack = 3,
    FullStack = 4,
    Flip = 5,
    Legend = 6,
    Separator = 7,
    Load = 8,
    Save = 9,
    Print = 10
};

/// A viewer's control bar: the chart-type selector, five check buttons, and load, save and print.
class ViewerToolBar : public QToolBar {
    Q_OBJECT

public:
    explicit ViewerToolBar(QWidget* parent = nullptr);

    [[nodiscard]] QAction* Button(BarButton button) const {
        return actions().at(static_cast<int>(button) - 1);
    }
    [[nodiscard]] QComboBox* TypeSelector() const { return cbType_; }

    [[nodiscard]] bool IsPressed(BarButton button) const { return Button(button)->isChecked(); }
    void Press(BarButton button, bool pressed) { Button(button)->setChecked(pressed); }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The person clicked a button, which is pressed or released by now.
    void ButtonClicked(QmChart6::BarButton button);
    /// The person chose a chart type, be it the one that was chosen already.
    void TypeChosen();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void AddTypeSelector();
    void FollowPalette();
    void AddButton(const QString& key, TextKey textKey, bool check);

    QComboBox* cbType_ = nullptr;
};

} // namespace QmChart6

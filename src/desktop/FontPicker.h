#pragma once

#include "desktop/Desktop.h"

#include <QDialog>
#include <QFont>

class QFontDialog;
class QPushButton;

namespace QmChart6 {

/// Chooses a font and its colour, the colour by the desktop that shows the picker.
class FontPicker : public QDialog {
    Q_OBJECT

public:
    FontPicker(Desktop& desktop, const FontChoice& start, const FontPickerTexts& texts, QWidget* owner);

    /// The choice as it stands. What was not touched is as it was given, even where the desktop shows
    /// something else for it: a font that is not installed, or a size with a fraction.
    [[nodiscard]] FontChoice Choice() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PickColour();
    void ShowColour();

    Desktop& desktop_;
    FontChoice start_;
    QColor colour_;
    QFont shownFirst_;
    QFontDialog* fonts_;
    QPushButton* btnColour_;
};

} // namespace QmChart6

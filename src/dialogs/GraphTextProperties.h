#pragma once

#include "chartcontrol/model/Drawing.h"
#include "desktop/Desktop.h"
#include "dialogs/PropertyDialog.h"

#include <array>
#include <cstdint>
#include <functional>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;

namespace QmChart6 {

class OrientationButton;
class TextSample;

/// What a text element of a chart offers. A null pointer stands for what it does not have.
struct TextElement {
    QString* Text = nullptr;
    Font* VtFont = nullptr;
    QmChart6::TextLayout* TextLayout = nullptr;
};

/// Finds a text element anew each time, for its chart may change while a dialog is open. An element without
/// a font or a layout is one that is gone.
using TextTarget = std::function<TextElement()>;

/// Edits the text, font, orientation and alignment of one text element of a chart.
class GraphTextProperties : public PropertyDialog {
    Q_OBJECT

public:
    /// The window's title is "Text Properties"; a caller may give it another.
    explicit GraphTextProperties(QWidget* owner);

    /// Edits the element in place until the dialog is left. Font, orientation and alignment are written
    /// whatever is allowed. Raises 91 where the element is gone when it is read or written, 445 where its
    /// text may be edited and it has none.
    void Execute(const TextTarget& OLabel, bool AllowText, bool AllowOrientation, bool AllowAlignment);

    /// The chosen orientation, 0 to 3. Writing another number raises 9.
    [[nodiscard]] std::int16_t frmOrientation() const { return orientationValue_; }
    void SetFrmOrientation(std::int16_t value);

    /// The font picker was confirmed since the dialog was filled.
    [[nodiscard]] bool FontChosen() const { return fontChosen_; }

    /// Splits a colour (red in the low byte, then green, then blue). Raises 5 where it has more than 24 bits.
    static void ColorToRGB(std::int32_t Color, std::uint8_t& Red, std::uint8_t& Green, std::uint8_t& Blue);

private:
    static constexpr std::size_t OrientationCount = 4;

    void MakeTextRow();
    void MakeGroups();
    void MakeOrientationButtons();
    void MakeAlignment();
    void Fill(const TextElement& element, bool allowText, bool allowOrientation, bool allowAlignment);
    void WriteBack(const TextElement& element, bool allowText) const;
    void ClickOrientation(int index);
    void PickFont();

    QLabel* lblText_ = nullptr;
    QLineEdit* TText_ = nullptr;
    TextSample* sample_ = nullptr;
    QGroupBox* frmOrientButtons_ = nullptr;
    std::array<OrientationButton*, OrientationCount> btnOrientation_{};
    QGroupBox* frmAlignment_ = nullptr;
    QLabel* lblHorizontal_ = nullptr;
    QComboBox* cbHorizontal_ = nullptr;
    QLabel* lblVertical_ = nullptr;
    QComboBox* cbVertical_ = nullptr;
    FontChoice CDLabel_;
    FontPickerTexts pickerTexts_;
    bool fontChosen_ = false;
    bool orientationBusy_ = false;
    std::int16_t orientationValue_ = 0;
};

} // namespace QmChart6

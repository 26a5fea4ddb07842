#include "dialogs/GraphTextProperties.h"

#include "chartcontrol/paint/QtColour.h"
#include "desktop/CurrentDesktop.h"
#include "dialogs/Captions.h"
#include "dialogs/ColourBox.h"
#include "dialogs/Mnemonics.h"
#include "dialogs/OrientationButton.h"
#include "dialogs/TextSample.h"
#include "qmchart6/RuntimeError.h"
#include "text/LocalHint.h"
#include "text/LocalText.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace QmChart6 {

namespace {

constexpr int MinimumTextWidth = 240; // logical pixels

TextElement Resolved(const TextTarget& target) {
    const TextElement element = target ? target() : TextElement{};
    if (element.VtFont == nullptr || element.TextLayout == nullptr)
        throw RuntimeError(ErrorNumber::ObjectNotSet,
                           QStringLiteral("The text element to edit is gone from the chart."));
    return element;
}

QString& TextOf(const TextElement& element) {
    if (element.Text == nullptr)
        throw RuntimeError(ErrorNumber::ActionNotSupported,
                           QStringLiteral("An element whose text may be edited must have a text."));
    return *element.Text;
}

FontChoice ChoiceOf(const Font& font) {
    return {.family = font.Name,
            .size = font.Size,
            .bold = (font.Style & FontBold) != 0,
            .italic = (font.Style & FontItalic) != 0,
            .strikethrough = (font.Effect & FontStrikethrough) != 0,
            .underline = (font.Effect & FontUnderline) != 0,
            .colour = QtColourOf(font.VtColor)};
}

QComboBox* NewUnsetList(QWidget* parent, const char* name, std::initializer_list<TextKey> textKeys) {
    auto* list = new QComboBox(parent);
    list->setObjectName(QLatin1String(name));
    for (const TextKey key : textKeys) list->addItem(LocalText(key));
    list->setCurrentIndex(-1); // until an element sets it
    return list;
}

} // namespace

GraphTextProperties::GraphTextProperties(QWidget* owner) : PropertyDialog(owner, Buttons::OkCancelApply) {
    setObjectName(QStringLiteral("GraphTextProperties"));
    setWindowTitle(LocalText(TextKey::TextProperties));
    const QStringList texts = WithMnemonics({.always = {WithDots(LocalText(TextKey::Color)),
                                                        LocalText(TextKey::Ok), LocalText(TextKey::Cancel)},
                                             .pages = {}})
                                  .always;
    pickerTexts_ = {.title = LocalText(TextKey::Font),
                    .colour = texts[0],
                    .ok = texts[1],
                    .cancel = texts[2],
                    .notInstalled = LocalHint(Hint::FontNotInstalled)};
    MakeTextRow();
    MakeGroups();
    // The form ends at Apply, so that is the last button on every desktop.
    ButtonBox().setStyleSheet(QStringLiteral("QDialogButtonBox { button-layout: 0 }"));
    Finish();
    SetFirstText(*TText_);
}

void GraphTextProperties::MakeTextRow() {
    TText_ = new QLineEdit(this);
    TText_->setObjectName(QStringLiteral("TText"));
    TText_->setMinimumWidth(MinimumTextWidth);
    lblText_ = NewLabel(this, "lblText", LocalText(TextKey::Text), *TText_);
    auto* btnFont = new QPushButton(WithDots(LocalText(TextKey::Font)), this);
    Describe(*btnFont, "btnFont", LocalText(TextKey::Font));
    On(btnFont, &QPushButton::clicked, [this] { PickFont(); });
    auto* row = new QHBoxLayout;
    row->addWidget(lblText_);
    row->addWidget(TText_, 1);
    row->addWidget(btnFont);
    Body().addLayout(row);
    sample_ = new TextSample(this);
    sample_->setObjectName(QStringLiteral("lblSample"));
    Body().addWidget(sample_);
    connect(TText_, &QLineEdit::textChanged, sample_, &TextSample::SetText);
}

void GraphTextProperties::MakeGroups() {
    MakeOrientationButtons();
    MakeAlignment();
    auto* row = new QHBoxLayout;
    row->addWidget(frmOrientButtons_);
    row->addWidget(frmAlignment_, 1);
    Body().addLayout(row);
    Body().addStretch(1);
}

void GraphTextProperties::MakeOrientationButtons() {
    const QString title = LocalText(TextKey::Orientation);
    frmOrientButtons_ = new QGroupBox(title, this);
    frmOrientButtons_->setObjectName(QStringLiteral("frmOrientButtons"));
    // Turned texts are told by their angle, which needs no words.
    const std::array names{LocalText(TextKey::Horizontal), LocalText(TextKey::Vertical),
                           QStringLiteral("90°"), QStringLiteral("-90°")};
    auto* row = new QHBoxLayout(frmOrientButtons_);
    auto* group = new QButtonGroup(this);
    for (std::size_t index = 0; index < OrientationCount; ++index) {
        const int number = static_cast<int>(index);
        auto* button = new OrientationButton(ToOrientation(number), frmOrientButtons_);
        Describe(*button, "", names[index], title);
        button->setObjectName(QStringLiteral("btnOrientation%1").arg(number));
        button->setToolTip(names[index]);
        group->addButton(button, number);
        row->addWidget(button);
        btnOrientation_[index] = button;
    }
    connect(group, &QButtonGroup::idClicked, this, &GraphTextProperties::ClickOrientation);
}

void GraphTextProperties::MakeAlignment() {
    frmAlignment_ = new QGroupBox(LocalText(TextKey::Alignment), this);
    frmAlignment_->setObjectName(QStringLiteral("frmAlignment"));
    // In the order of the codes that stand for them.
    cbHorizontal_ =
        NewUnsetList(frmAlignment_, "cbHorizontal", {TextKey::Left, TextKey::Right, TextKey::Center});
    cbVertical_ = NewUnsetList(frmAlignment_, "cbVertical", {TextKey::Top, TextKey::Bottom, TextKey::Center});
    lblHorizontal_ = NewLabel(frmAlignment_, "lblHorizontal", LocalText(TextKey::Horizontal), *cbHorizontal_);
    lblVertical_ = NewLabel(frmAlignment_, "lblVertical", LocalText(TextKey::Vertical), *cbVertical_);
    auto* grid = new QGridLayout(frmAlignment_);
    grid->addWidget(lblHorizontal_, 0, 0);
    grid->addWidget(cbHorizontal_, 0, 1);
    grid->addWidget(lblVertical_, 1, 0);
    grid->addWidget(cbVertical_, 1, 1);
    grid->setColumnStretch(1, 1);
}

void GraphTextProperties::Execute(const TextTarget& OLabel, bool AllowText, bool AllowOrientation,
                                  bool AllowAlignment) {
    Fill(Resolved(OLabel), AllowText, AllowOrientation, AllowAlignment);
    RunLoop([&] { WriteBack(Resolved(OLabel), AllowText); });
}

void GraphTextProperties::Fill(const TextElement& element, bool allowText, bool allowOrientation,
                               bool allowAlignment) {
    fontChosen_ = false;
    orientationBusy_ = false;
    lblText_->setEnabled(allowText);
    TText_->setEnabled(allowText);
    TText_->setText(allowText ? TextOf(element) : QStringLiteral("Data Values"));
    CDLabel_ = ChoiceOf(*element.VtFont);
    sample_->SetFont(CDLabel_);
    if (allowAlignment) {
        cbHorizontal_->setCurrentIndex(static_cast<int>(element.TextLayout->HorzAlignment));
        cbVertical_->setCurrentIndex(static_cast<int>(element.TextLayout->VertAlignment));
    }
    for (QWidget* control : std::initializer_list<QWidget*>{cbHorizontal_, cbVertical_, lblHorizontal_,
                                                            lblVertical_, frmAlignment_})
        control->setEnabled(allowAlignment);
    if (allowOrientation) SetFrmOrientation(static_cast<std::int16_t>(element.TextLayout->Orientation));
    for (OrientationButton* button : btnOrientation_) button->setEnabled(allowOrientation);
    frmOrientButtons_->setEnabled(allowOrientation);
}

void GraphTextProperties::WriteBack(const TextElement& element, bool allowText) const {
    if (allowText) TextOf(element) = TText_->text();
    Font& font = *element.VtFont;
    font.Name = CDLabel_.family;
    font.Size = CDLabel_.size;
    // An outline is not offered, and so is taken off.
    font.Style = (CDLabel_.italic ? FontItalic : 0) + (CDLabel_.bold ? FontBold : 0);
    font.Effect = (CDLabel_.underline ? FontUnderline : 0) + (CDLabel_.strikethrough ? FontStrikethrough : 0);
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    ColorToRGB(NumberOf(ColourOf(CDLabel_.colour)), red, green, blue);
    font.VtColor.Set(red, green, blue);
    // Written whatever is allowed, from the controls as they stand. A list that was never set has nothing to
    // say, so the element's own alignment stays.
    TextLayout& layout = *element.TextLayout;
    if (cbHorizontal_->currentIndex() >= 0)
        layout.HorzAlignment = ToHorizontalAlignment(cbHorizontal_->currentIndex());
    if (cbVertical_->currentIndex() >= 0)
        layout.VertAlignment = ToVerticalAlignment(cbVertical_->currentIndex());
    layout.Orientation = ToOrientation(orientationValue_);
}

void GraphTextProperties::SetFrmOrientation(std::int16_t value) {
    if (value < 0 || value >= static_cast<int>(OrientationCount))
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("An orientation is a number from 0 to 3."));
    orientationValue_ = value;
    btnOrientation_[static_cast<std::size_t>(value)]->setChecked(true); // which makes the old one plain
}

void GraphTextProperties::ClickOrientation(int index) {
    if (orientationBusy_) return;
    orientationBusy_ = true;
    SetFrmOrientation(static_cast<std::int16_t>(index));
    orientationBusy_ = false;
}

void GraphTextProperties::PickFont() {
    const auto picked = CurrentDesktop().PickFont(this, CDLabel_, pickerTexts_);
    if (!picked) return;
    CDLabel_ = *picked;
    sample_->SetFont(CDLabel_);
    fontChosen_ = true;
}

void GraphTextProperties::ColorToRGB(std::int32_t Color, std::uint8_t& Red, std::uint8_t& Green,
                                     std::uint8_t& Blue) {
    const auto bits = static_cast<std::uint32_t>(Color);
    if (bits > 0xffffff)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("A colour has 24 bits; a system colour has no components."));
    Red = static_cast<std::uint8_t>(bits & 0xff);
    Green = static_cast<std::uint8_t>((bits >> 8) & 0xff);
    Blue = static_cast<std::uint8_t>((bits >> 16) & 0xff);
}

} // namespace QmChart6

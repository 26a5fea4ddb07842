#include "desktop/FontPicker.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace QmChart6 {

namespace {

/// The family that the desktop draws for a name: its own where it is installed.
QString DrawnFamily(const QString& family) {
    const QStringList families = QFontDatabase::families();
    if (families.contains(family, Qt::CaseInsensitive)) return family;
    const QString drawn = QFontInfo(QFont(family)).family();
    return families.contains(drawn) ? drawn : family;
}

/// What the list of styles calls a font; "" where it has nothing of its weight and slant.
QString StyleOf(const QFont& font) {
    constexpr int AnySize = 12; // points
    const QString family = font.family();
    for (const QString& style : QFontDatabase::styles(family)) {
        const QFont styled = QFontDatabase::font(family, style, AnySize);
        if (styled.weight() == font.weight() && styled.italic() == font.italic()) return style;
    }
    return {};
}

/// As it is drawn, so that the styles there are can be chosen from.
QFont FontOf(const FontChoice& choice) {
    QFont font(DrawnFamily(choice.family));
    font.setPointSizeF(choice.size);
    font.setBold(choice.bold);
    font.setItalic(choice.italic);
    // By its weight alone the dialog looks for a translated name, which the list does not have.
    font.setStyleName(StyleOf(font));
    font.setStrikeOut(choice.strikethrough);
    font.setUnderline(choice.underline);
    return font;
}

constexpr QSize MinimumFontsSize{460, 320}; // logical pixels

QIcon Swatch(const QColor& colour, const QColor& frame, QSize size, double pixelRatio) {
    QPixmap picture(size * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(frame);
    QPainter(&picture).fillRect(QRect({1, 1}, size - QSize(2, 2)), colour);
    return picture;
}

} // namespace

FontPicker::FontPicker(Desktop& desktop, const FontChoice& start, const FontPickerTexts& texts,
                       QWidget* owner)
    : QDialog(owner), desktop_(desktop), start_(start), colour_(start.colour), fonts_(new QFontDialog(this)),
      btnColour_(new QPushButton(texts.colour, this)) {
    setWindowTitle(texts.title);
    // The toolkit's own font dialog without its frame and buttons; it knows no colours.
    fonts_->setWindowFlags(Qt::Widget);
    fonts_->setOptions(QFontDialog::DontUseNativeDialog | QFontDialog::NoButtons);
    fonts_->setSizeGripEnabled(false);
    fonts_->setMinimumSize(MinimumFontsSize);
    fonts_->layout()->setContentsMargins({});
    fonts_->installEventFilter(this);
    fonts_->setCurrentFont(FontOf(start));
    shownFirst_ = fonts_->currentFont();
    btnColour_->setObjectName(QStringLiteral("btnColour"));
    btnColour_->setAutoDefault(false);
    connect(btnColour_, &QPushButton::clicked, this, &FontPicker::PickColour);

    auto* lblDrawn = new QLabel(this);
    lblDrawn->setObjectName(QStringLiteral("lblDrawn"));
    lblDrawn->setTextFormat(Qt::PlainText);
    lblDrawn->setWordWrap(true);
    const QString drawn = DrawnFamily(start.family);
    lblDrawn->setText(texts.notInstalled.arg(start.family, drawn));
    lblDrawn->setVisible(drawn.compare(start.family, Qt::CaseInsensitive) != 0);

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(texts.ok, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(texts.cancel, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // The part must not close on a key of its own while the whole stays.
    connect(fonts_, &QDialog::accepted, this, &QDialog::accept);
    connect(fonts_, &QDialog::rejected, this, &QDialog::reject);

    auto* foot = new QHBoxLayout;
    foot->addWidget(btnColour_);
    foot->addStretch(1);
    foot->addWidget(buttons);
    auto* column = new QVBoxLayout(this);
    column->addWidget(fonts_, 1);
    column->addWidget(lblDrawn);
    column->addLayout(foot);
    ShowColour();
}

/// A dialog without buttons would keep Enter for itself.
bool FontPicker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            accept();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

FontChoice FontPicker::Choice() const {
    FontChoice choice = start_;
    const QFont now = fonts_->currentFont();
    if (now.family() != shownFirst_.family()) choice.family = now.family();
    if (now.pointSizeF() != shownFirst_.pointSizeF()) choice.size = now.pointSizeF();
    if (now.bold() != shownFirst_.bold()) choice.bold = now.bold();
    if (now.italic() != shownFirst_.italic()) choice.italic = now.italic();
    if (now.strikeOut() != shownFirst_.strikeOut()) choice.strikethrough = now.strikeOut();
    if (now.underline() != shownFirst_.underline()) choice.underline = now.underline();
    choice.colour = colour_;
    return choice;
}

void FontPicker::PickColour() {
    const auto picked = desktop_.PickColour(this, colour_, windowTitle());
    if (!picked) return;
    colour_ = *picked;
    ShowColour();
}

void FontPicker::ShowColour() {
    btnColour_->setIcon(
        Swatch(colour_, palette().color(QPalette::Mid), btnColour_->iconSize(), devicePixelRatioF()));
    // The sample's text, where this toolkit's dialog has it under this name.
    if (auto* sample = fonts_->findChild<QLineEdit*>(QStringLiteral("qt_fontDialog_sampleEdit"))) {
        QPalette palette = sample->palette();
        palette.setColor(QPalette::Text, colour_);
        sample->setPalette(palette);
    }
}

} // namespace QmChart6

#include "viewer/KeysCard.h"

#include "text/LocalHint.h"
#include "text/LocalText.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace QmChart6 {

namespace {

constexpr int ColumnGap = 24; // logical pixels

/// What is pressed or clicked, and what it does.
struct CardRow {
    QString keys;
    Hint does;
};

QList<CardRow> Keys() {
    return {
        {QStringLiteral("F1"), Hint::ThisCard},
        {QStringLiteral("Ctrl+C"), Hint::CopyChart},
        {QStringLiteral("Ctrl+S"), Hint::SavePicture},
        {QStringLiteral("Ctrl+P"), Hint::PrintTheChart},
        {QStringLiteral("Ctrl+Z"), Hint::TakeBack},
        {QStringLiteral("Ctrl+Shift+Z, Ctrl+Y"), Hint::DoAgain},
        {QStringLiteral("Tab, Shift+Tab"), Hint::WalkParts},
        {LocalHint(Hint::ArrowKeys), Hint::WalkPoints},
        {QStringLiteral("Home, End"), Hint::EndPoints},
        {QStringLiteral("Enter"), Hint::EditPart},
        {QStringLiteral("Shift+F10"), Hint::PartMenu},
        {QStringLiteral("Esc"), Hint::SelectNothing},
        {LocalHint(Hint::Click), Hint::SelectPart},
        {LocalHint(Hint::DoubleClick), Hint::EditPart},
        {LocalHint(Hint::RightClick), Hint::PartMenu},
        {LocalHint(Hint::CtrlDrag), Hint::TurnView},
        {LocalHint(Hint::Dragging), Hint::MovePart},
        {LocalHint(Hint::CtrlArrowKeys), Hint::MoveByAPoint},
        {QStringLiteral("Home"), Hint::OwnPlace},
    };
}

QLabel* NewLine(const QString& text, QWidget* card) {
    auto* line = new QLabel(text, card);
    line->setTextFormat(Qt::PlainText);
    return line;
}

} // namespace

KeysCard::KeysCard(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("KeysCard"));
    setWindowTitle(LocalHint(Hint::KeysAndMouse));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(ColumnGap);
    for (const CardRow& row : Keys()) {
        QLabel* keys = NewLine(row.keys, this);
        QFont bold = keys->font();
        bold.setBold(true);
        keys->setFont(bold);
        const int at = grid->rowCount();
        grid->addWidget(keys, at, 0);
        grid->addWidget(NewLine(LocalHint(row.does), this), at, 1);
    }
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(LocalText(TextKey::Ok), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->addLayout(grid);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace QmChart6

#include "dialogs/Captions.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

namespace QmChart6 {

void Describe(QWidget& control, const char* name, const QString& text, const QString& group) {
    control.setObjectName(QLatin1String(name));
    control.setAccessibleName(text);
    control.setAccessibleDescription(group);
}

QLabel* NewLabel(QWidget* parent, const char* name, const QString& text, QWidget& buddy) {
    auto* label = new QLabel(text + u':', parent);
    label->setObjectName(QLatin1String(name));
    label->setBuddy(&buddy);
    buddy.setAccessibleName(text);
    return label;
}

QString WithDots(const QString& text) {
    return text + QStringLiteral("...");
}

QGridLayout* NewGrid(QWidget* page) {
    auto* column = new QVBoxLayout(page);
    auto* grid = new QGridLayout;
    column->addLayout(grid);
    column->addStretch(1);
    grid->setColumnStretch(1, 1);
    return grid;
}

} // namespace QmChart6

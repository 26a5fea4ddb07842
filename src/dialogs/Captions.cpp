#include "dialogs/Captions.h"

#include <QLabel>
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

} // namespace QmChart6

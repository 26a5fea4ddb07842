#include "config/LookNames.h"

namespace QmChart6 {

QString FoldedName(QString name) {
    for (QChar& letter : name)
        if (letter >= u'A' && letter <= u'Z') letter = QChar(letter.unicode() + (u'a' - u'A'));
    return name;
}

bool EqualNames(const QString& a, const QString& b) {
    return FoldedName(a) == FoldedName(b);
}

} // namespace QmChart6

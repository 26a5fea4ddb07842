#include "config/LookNames.h"

#include <algorithm>

namespace QmChart6 {

bool EqualNames(const QString& a, const QString& b) {
    const auto fold = [](QChar letter) {
        return letter >= u'A' && letter <= u'Z' ? QChar(letter.unicode() + (u'a' - u'A')) : letter;
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [fold](QChar one, QChar other) { return fold(one) == fold(other); });
}

} // namespace QmChart6

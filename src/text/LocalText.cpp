#include "text/LocalText.h"

#include "base/ProcessState.h"
#include "qmchart6/RuntimeError.h"
#include "text/StringTable.h"

#include <QStringView>

#include <limits>

namespace QmChart6 {

namespace {

/// The value where it fits 32 bits; raises 6 otherwise.
std::int32_t Checked(std::int64_t value) {
    if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max())
        throw RuntimeError(ErrorNumber::Overflow,
                           QStringLiteral("a text's id is within 32 bits, %1 is not").arg(value));
    return static_cast<std::int32_t>(value);
}

/// Every step is checked by itself, so a negative language does not hide an overflow before it.
std::int32_t IdOfText(std::int32_t key, std::int16_t language) {
    const auto tens = Checked(std::int64_t{key} * 10);
    const auto english = Checked(std::int64_t{tens} + 30000);
    return Checked(std::int64_t{english} + language);
}

} // namespace

std::int16_t LanguageCode() {
    return Process().languageCode;
}

void SetLanguageCode(std::int16_t code) {
    Process().languageCode = code;
}

QString LocalText(TextKey key) {
    const auto id = IdOfText(static_cast<std::int32_t>(key), Process().languageCode);
    const auto text = StringOfId(id);
    if (!text)
        throw RuntimeError(ErrorNumber::ResourceNotFound, QStringLiteral("there is no text %1").arg(id));
    return QStringView(*text).toString();
}

} // namespace QmChart6

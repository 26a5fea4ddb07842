#include "text/LocalHint.h"

#include "text/Languages.h"
#include "text/LocalText.h"

namespace QmChart6 {

QString LocalHint(Hint hint) {
    const std::u16string_view text =
        LanguageOrEnglish(LanguageCode()).words->hints[static_cast<std::size_t>(hint)].text;
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace QmChart6

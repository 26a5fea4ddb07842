#include "text/Languages.h"

#include <algorithm>

namespace QmChart6 {

// Each in a file of its own under text/words.
extern const Words EnglishWords;
extern const Words PortugueseWords;
extern const Words SpanishWords;
extern const Words ItalianWords;

namespace {

constexpr std::array Rows{
    LanguageRow{Language::English, "en", "", &EnglishWords},
    LanguageRow{Language::Portuguese, "pt", "pt_BR", &PortugueseWords},
    LanguageRow{Language::Spanish, "es", "es", &SpanishWords},
    LanguageRow{Language::Italian, "it", "it", &ItalianWords},
};

constexpr std::size_t PlaceOf(const LanguageRow& row) {
    return static_cast<std::size_t>(row.number);
}

static_assert(std::ranges::all_of(Rows, [](const LanguageRow& row) {
    return PlaceOf(row) < Rows.size() && &row == &Rows[PlaceOf(row)];
}));

} // namespace

std::span<const LanguageRow> Languages() {
    return Rows;
}

const LanguageRow& LanguageOrEnglish(std::int16_t number) {
    const auto found = std::ranges::find(
        Rows, number, [](const LanguageRow& row) { return static_cast<std::int16_t>(row.number); });
    return found == Rows.end() ? Rows.front() : *found;
}

QStringList LanguageCodes() {
    QStringList codes;
    for (const LanguageRow& row : Rows) codes.append(QLatin1String(row.code));
    return codes;
}

} // namespace QmChart6

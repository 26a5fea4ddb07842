#pragma once

#include "qmchart6/Language.h"
#include "text/words/Words.h"

#include <span>

namespace QmChart6 {

/// All that is known of one language.
struct LanguageRow {
    Language number;
    const char* code;   ///< what people name it by: "pt"
    const char* locale; ///< how Qt's own texts are named, "pt_BR"; "" for the language that Qt itself speaks
    const Words* words;
};

/// The languages in the order of their numbers, from 0.
std::span<const LanguageRow> Languages();

/// The language of a number, English for a number that none has.
const LanguageRow& LanguageOrEnglish(std::int16_t number);

} // namespace QmChart6

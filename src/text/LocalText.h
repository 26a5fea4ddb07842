#pragma once

#include "text/TextKey.h"

#include <QString>

#include <cstdint>

namespace QmChart6 {

/// The process-wide number of the language that texts are looked up with. Any number is kept as it is given,
/// also one that no language has.
std::int16_t LanguageCode();
void SetLanguageCode(std::int16_t code);

/// The text of a key in the process' language: the string of id 30000 + 10 * key + language.
/// Raises 326 where there is no such id, 6 where the id does not fit 32 bits.
QString LocalText(TextKey key);

} // namespace QmChart6

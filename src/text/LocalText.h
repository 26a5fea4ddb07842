#pragma once

#include <QString>

#include <cstdint>

namespace QmChart6 {

/// The process-wide language code that texts are looked up with: 0 English, 1 Portuguese, 2 Spanish, 3
/// Italian. Any number is kept as it is given.
std::int16_t LanguageCode();
void SetLanguageCode(std::int16_t code);

/// The text of a key (0 to 121) in the process' language: the string of id 30000 + 10 * key + language.
/// Raises 326 where there is no such id, 6 where the id does not fit 32 bits.
QString LocalText(std::int32_t key);

} // namespace QmChart6

#pragma once

#include "qmchart6/Export.h"

#include <QStringList>

#include <cstdint>

namespace QmChart6 {

/// The languages that texts exist in, with the numbers that QmMakeGraph takes.
enum class Language : std::int16_t { English, Portuguese, Spanish, Italian };

/// The codes that people name languages by ("en", "pt", "es", "it"), in the order of the numbers from 0.
QMCHART6_EXPORT QStringList LanguageCodes();

} // namespace QmChart6

#pragma once

#include "chartcontrol/widget/ChartVocabulary.h"

#include <cstdint>

namespace QmChart6 {

/// A chart's words in the language of a code: 1 Portuguese, 2 Spanish, 3 Italian, otherwise English.
ChartVocabulary VocabularyOf(std::int16_t language);

} // namespace QmChart6

#pragma once

#include "chartcontrol/model/ChartVocabulary.h"
#include "text/Hint.h"
#include "text/TextKey.h"

#include <array>
#include <string_view>

namespace QmChart6 {

/// What one language says for a key. Odd texts (a lone ")", a viewer left in English) are meant to stay as
/// they are.
struct TextRow {
    TextKey key{};
    std::u16string_view text;
};
using TextRows = std::array<TextRow, TextKeyCount>;

/// Whether every key has its text, at its place. Each language asks that when it is compiled.
constexpr bool IsWhole(const TextRows& rows) {
    for (std::size_t place = 0; place < rows.size(); ++place)
        if (static_cast<std::size_t>(rows[place].key) != place || rows[place].text.empty()) return false;
    return true;
}

/// The same for a hint.
struct HintRow {
    Hint key{};
    std::u16string_view text;
};
using HintRows = std::array<HintRow, HintCount>;

constexpr bool IsWhole(const HintRows& rows) {
    for (std::size_t place = 0; place < rows.size(); ++place)
        if (static_cast<std::size_t>(rows[place].key) != place || rows[place].text.empty()) return false;
    return true;
}

/// What may have to be remarked on a chart or a look, in the order that every language has its sentences in.
/// %1 and %2 are filled in.
enum class Remark {
    NoRoomForLabels,
    NoRoomForAxes,
    NoRoomForPlot,
    NoRoomInLegend,
    NoRoomForPies,
    NoValue,
    NegativeHasNoSlice,
    NegativesHaveNoSlice,
    ZeroHasNoSlice,
    ZerosHaveNoSlice,
    NotAboveZero,
    NoneAboveZero,
    NotAllKept,
    Count,
};
using Remarks = std::array<std::u16string_view, static_cast<std::size_t>(Remark::Count)>;

constexpr bool IsWhole(const Remarks& remarks) {
    for (const std::u16string_view remark : remarks)
        if (remark.empty()) return false;
    return true;
}

/// All that one language says.
struct Words {
    const TextRows& texts;
    const HintRows& hints;
    const Remarks& remarks;
    ChartVocabulary (*chart)(); ///< what a chart is told in
};

} // namespace QmChart6

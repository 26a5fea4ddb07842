#include "text/StringTable.h"

#include "text/Languages.h"

namespace QmChart6 {

namespace {

constexpr std::int32_t FirstId = 30000;
constexpr std::int32_t IdsOfAKey = 10;

} // namespace

std::optional<std::u16string_view> StringOfId(std::int32_t id) {
    if (id < FirstId) return std::nullopt;
    const auto key = static_cast<std::size_t>((id - FirstId) / IdsOfAKey);
    const auto language = static_cast<std::size_t>((id - FirstId) % IdsOfAKey);
    if (key >= TextKeyCount || language >= Languages().size()) return std::nullopt;
    return Languages()[language].words->texts[key].text;
}

} // namespace QmChart6

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace QmChart6 {

/// The text of an id (30000 + 10 * key + language), nothing where the table has no such id.
std::optional<std::u16string_view> StringOfId(std::int32_t id);

} // namespace QmChart6

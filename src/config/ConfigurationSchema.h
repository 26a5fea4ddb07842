#pragma once

#include "database/Schema.h"

namespace QmChart6 {

inline constexpr const char* BindingsTable = "Charts";
inline constexpr const char* ChartIdField = "ChartId";
/// The index by the look's name, which many records share.
inline constexpr const char* LookIndexName = "Config";

/// The five tables of the configuration database: the charts' bindings, and the looks'.
const Schema& ConfigurationSchema();

} // namespace QmChart6

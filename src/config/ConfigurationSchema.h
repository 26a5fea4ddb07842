#pragma once

#include "database/Schema.h"

namespace QmChart6 {

inline constexpr const char* BindingsTable = "Charts";
inline constexpr const char* ChartIdField = "ChartId";
/// The index by the look's name, which many records share.
inline constexpr const char* LookIndexName = "Config";

/// What looks say beyond the fields of the other tables, a record for each value. A database may lack this
/// table: then its looks say nothing beyond.
inline constexpr const char* ExtrasTable = "LookExtras";
inline constexpr const char* ExtraElementField = "Element";
inline constexpr const char* ExtraFieldField = "Field";
inline constexpr const char* ExtraValueField = "Value";

/// The tables of the configuration database: the charts' bindings, the four of the looks, and the one of what
/// they say beyond those, which comes last.
const Schema& ConfigurationSchema();

} // namespace QmChart6

#pragma once

#include "config/LookField.h"

#include <vector>

namespace QmChart6 {

/// The records of one kind in a look, with all their fields but the keys, in the order that they are written.
struct LookTable {
    QString name;
    QString partsName;   ///< what the records are together: "Series"
    QString numberField; ///< the field behind the look's name in the key; "" where a look has one record
    std::vector<LookField> fields;

    /// Raises 3265 for a name that is none of the fields'.
    [[nodiscard]] const LookField& Field(const QString& field) const;
};

/// The four kinds of records of a look. These lists are all there is: the tables, saving, loading and the
/// tools are made from them.
const LookTable& ChartLook();
const LookTable& ColumnsLook();
const LookTable& SeriesLook();
const LookTable& AxesLook();

/// The field of every table that holds the look's name.
inline constexpr const char* LookNameField = "ConfigId";

} // namespace QmChart6

#pragma once

#include "config/LookExtras.h"
#include "database/Database.h"

#include <optional>

namespace QmChart6 {

/// What looks say beyond the fields of their tables, in the configuration database. Where that has no place
/// for it, there is nothing, and nothing is kept.
class StoredExtras {
public:
    explicit StoredExtras(Database& database);

    /// Whether the database has a place for it.
    [[nodiscard]] bool IsThere() const { return records_.has_value(); }

    /// Raises as ExtraKeyOf and ExtraOfText what no program has stored.
    [[nodiscard]] Extras Read(const QString& name);
    void Replace(const QString& name, const Extras& extras);
    void Delete(const QString& name);

private:
    std::optional<Recordset> records_;
};

} // namespace QmChart6

#pragma once

#include "config/LookExtras.h"
#include "database/Database.h"

#include <functional>
#include <optional>
#include <utility>

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
    /// Goes through those of all looks: `action` gets a look's name, and a function that gives the value with
    /// its key and raises as Read.
    using ReadOne = std::function<std::pair<const ExtraKey, ExtraValue>()>;
    void ForEach(const std::function<void(const QString& name, const ReadOne& read)>& action);
    void Replace(const QString& name, const Extras& extras);
    void Delete(const QString& name);

private:
    std::optional<Recordset> records_;
};

} // namespace QmChart6

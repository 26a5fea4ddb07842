#pragma once

#include "database/FieldValue.h"

#include <QStringList>

#include <vector>

namespace QmChart6 {

struct FieldDescription {
    QString name;
    FieldKind kind = FieldKind::Text;
};

/// Keys of text compare and sort without regard to the case of A to Z.
struct IndexDescription {
    QString name;
    QStringList fields;
    bool unique = false;
};

/// The name of the index that every table has and that names a record.
inline constexpr const char* PrimaryKeyName = "PrimaryKey";

/// A table as the program knows it. No statement has a name in it that does not stand here.
struct TableDescription {
    QString name;
    std::vector<FieldDescription> fields;
    std::vector<IndexDescription> indexes; ///< the primary key first

    [[nodiscard]] const IndexDescription& PrimaryKey() const { return indexes.front(); }
    /// What the database calls an index: names of indexes stand side by side there, so the table's is in it.
    [[nodiscard]] QString IndexName(const IndexDescription& index) const { return name + u'_' + index.name; }
    /// Raise 3265 and 3015 for one that the table does not have; case does not count.
    [[nodiscard]] const FieldDescription& Field(const QString& field) const;
    [[nodiscard]] const IndexDescription& Index(const QString& index) const;
};

using Schema = std::vector<TableDescription>;

/// Raises 3078 for a table that the schema does not have.
[[nodiscard]] const TableDescription& TableOf(const Schema& schema, const QString& table);

} // namespace QmChart6

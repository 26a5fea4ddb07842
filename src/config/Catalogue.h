#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace QmChart6 {

class Database;

// What a configuration database knows of its looks. Each function opens the database at a place, a file or a
// server's schema, and closes it; errors are those of Database.

struct LookBinding {
    QString graphId;
    QString name;
};

/// Binds a chart to a look, in place of the one before; the other in a database that is being written to.
void BindLook(Database& database, const QString& graphId, const QString& name);
void BindLook(const QString& location, const QString& graphId, const QString& name);
/// The look that a chart is bound to; nothing where it is bound to none.
std::optional<QString> BoundLook(const QString& location, const QString& graphId);
/// All bindings, in the order of the graph ids.
QList<LookBinding> LookBindings(const QString& location);

/// Deletes a look and every binding to it; an unknown name does nothing.
void DeleteLook(const QString& location, const QString& name);
[[nodiscard]] bool LookExists(const QString& location, const QString& name);
/// The names of all looks in key order, added to `names` one by one.
void ListLooks(const QString& location, QStringList& names);

struct CopiedLooks {
    int looks = 0;
    int bindings = 0;
    int valuesNotKept = 0; ///< beyond the fields of the looks' tables, where the other has no place for them
};
/// Copies all looks and bindings into another database that is there already. A look of the same name is
/// replaced record by record, what it says beyond its tables as a whole.
CopiedLooks CopyLooks(const QString& from, const QString& to);

} // namespace QmChart6

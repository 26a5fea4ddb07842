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

/// The table that writers take turns at: that of the bindings, or the looks' own where a database lacks it.
QString TableOfTurns(Database& database);

} // namespace QmChart6

#include "config/CopyLooks.h"

#include "config/Catalogue.h"
#include "config/ConfigurationSchema.h"
#include "config/LookJson.h"
#include "config/LookNames.h"
#include "config/StoredLook.h"
#include "database/Database.h"
#include "database/Location.h"

#include <algorithm>
#include <map>

namespace QmChart6 {

namespace {

struct Binding {
    QString graphId;
    QString name;
};

/// What is read of a store at one moment.
struct WholeStore {
    std::map<QString, NamedLook> looks; ///< by their folded names
    QList<Binding> bindings;
    QList<LookLeftOut> unreadable;
};

bool IsIn(const QList<LookLeftOut>& leftOut, const QString& name) {
    return std::any_of(leftOut.begin(), leftOut.end(),
                       [&](const LookLeftOut& one) { return EqualNames(one.name, name); });
}

/// Does something for one look, whose failure is its own.
template<class Action>
bool Try(const QString& name, QList<LookLeftOut>& leftOut, Action&& action) {
    try {
        action();
        return true;
    } catch (const RuntimeError& error) {
        leftOut.append({name, error.Message()});
        return false;
    }
}

/// Goes through the records of a table in key order.
template<class Action>
void ForEach(Recordset& records, Action&& action) {
    records.SetIndex(QLatin1String(PrimaryKeyName));
    for (; !records.EndOfFile(); records.MoveNext()) action();
}

QString NameIn(Recordset& records) {
    return std::get<QString>(records.Value(QLatin1String(LookNameField)));
}

void ReadInto(Look& look, Recordset& records, const LookTable& table) {
    const bool numbered = !table.numberField.isEmpty();
    look.Start(table, numbered ? std::get<std::int16_t>(records.Value(table.numberField)) : 0);
    for (const LookField& field : table.fields) look.Set(table, field, records.Value(field.name));
    look.Finish(table);
}

/// What one table has of each look. Records without a look of their name are nobody's.
void ReadTable(Database& database, const LookTable& table, WholeStore& store) {
    Recordset records = database.OpenRecordset(table.name);
    ForEach(records, [&] {
        const QString name = NameIn(records);
        if (&table == &ChartLook()) store.looks.try_emplace(FoldedName(name), NamedLook{name, {}});
        const auto found = store.looks.find(FoldedName(name));
        if (found == store.looks.end()) return;
        if (!Try(found->second.name, store.unreadable, [&] { ReadInto(found->second.look, records, table); }))
            store.looks.erase(found);
    });
}

void ReadExtras(Database& database, WholeStore& store) {
    std::map<QString, Extras> all;
    StoredExtras extras(database);
    extras.ForEach([&](const QString& name, const auto& read) {
        const auto found = store.looks.find(FoldedName(name));
        if (found == store.looks.end()) return;
        if (!Try(found->second.name, store.unreadable, [&] { all[found->first].insert(read()); }))
            store.looks.erase(found);
    });
    for (auto& [name, look] : store.looks) look.look.SetExtras(all[name]);
}

QList<Binding> BindingsIn(Database& database, QList<LookLeftOut>& leftOut) {
    QList<Binding> all;
    Recordset bindings = database.OpenRecordset(QLatin1String(BindingsTable));
    ForEach(bindings, [&] {
        const QString graphId = std::get<QString>(bindings.Value(QLatin1String(ChartIdField)));
        Try(QStringLiteral("bound to %1").arg(graphId), leftOut,
            [&] { all.append({graphId, NameIn(bindings)}); });
    });
    return all;
}

WholeStore ReadStore(Database& database) {
    const Database::Reading reading(database);
    WholeStore store;
    for (const LookTable* table : LookTables()) ReadTable(database, *table, store);
    ReadExtras(database, store);
    store.bindings = BindingsIn(database, store.unreadable);
    return store;
}

void RequireTwoStores(const QString& from, const QString& to) {
    if (AreOnePlace(ParseLocation(from), ParseLocation(to)))
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("\"%1\" and \"%2\" are the same store").arg(from, to));
}

} // namespace

CopiedLooks CopyLooks(const QString& from, const QString& to) {
    RequireTwoStores(from, to);
    Database source(from, ConfigurationSchema());
    Database target(to, ConfigurationSchema());
    // Whatever is missing there as a whole is told before anything is read or written.
    const StoredLook tables(target, QString());
    WholeStore store = ReadStore(source);
    CopiedLooks copied;
    copied.leftOut = store.unreadable;
    for (const auto& [key, named] : store.looks)
        copied.looks += Try(named.name, copied.leftOut, [&, &named = named] {
            copied.valuesNotKept += WriteWholeLook(target, named.name, named.look);
        });
    Database::Writing writing(target, QLatin1String(BindingsTable));
    for (const Binding& binding : store.bindings) {
        if (IsIn(copied.leftOut, binding.name)) continue;
        BindLook(target, binding.graphId, binding.name);
        ++copied.bindings;
    }
    writing.Finish();
    return copied;
}

} // namespace QmChart6

#include "config/Catalogue.h"

#include "config/ConfigurationSchema.h"
#include "config/LookFields.h"
#include "config/StoredExtras.h"
#include "database/Database.h"

namespace QmChart6 {

namespace {

QString TextOf(Recordset& records, const char* field) {
    return std::get<QString>(records.Value(QLatin1String(field)));
}

void SeekByKey(Recordset& records, const std::vector<FieldValue>& key) {
    records.SetIndex(QLatin1String(PrimaryKeyName));
    records.Seek(key);
}

Recordset OpenBindings(Database& database) {
    return database.OpenRecordset(QLatin1String(BindingsTable));
}

} // namespace

QString TableOfTurns(Database& database) {
    const bool isThere = database.OpenRecordsetIfThere(QLatin1String(BindingsTable)).has_value();
    return isThere ? QLatin1String(BindingsTable) : ChartLook().name;
}

void BindLook(Database& database, const QString& graphId, const QString& name) {
    Recordset bindings = OpenBindings(database);
    SeekByKey(bindings, {graphId});
    if (bindings.NoMatch()) {
        bindings.AddNew();
        bindings.SetValue(QLatin1String(ChartIdField), graphId);
    } else {
        bindings.Edit();
    }
    bindings.SetValue(QLatin1String(LookNameField), name);
    bindings.Update();
}

void BindLook(const QString& location, const QString& graphId, const QString& name) {
    Database database(location, ConfigurationSchema());
    Database::Writing writing(database, QLatin1String(BindingsTable));
    BindLook(database, graphId, name);
    writing.Finish();
}

std::optional<QString> BoundLook(const QString& location, const QString& graphId) {
    Database database(location, ConfigurationSchema());
    Recordset bindings = OpenBindings(database);
    SeekByKey(bindings, {graphId});
    if (bindings.NoMatch()) return std::nullopt;
    return TextOf(bindings, LookNameField);
}

QList<LookBinding> LookBindings(const QString& location) {
    Database database(location, ConfigurationSchema());
    Recordset bindings = OpenBindings(database);
    bindings.SetIndex(QLatin1String(PrimaryKeyName));
    QList<LookBinding> all;
    for (; !bindings.EndOfFile(); bindings.MoveNext())
        all.append({TextOf(bindings, ChartIdField), TextOf(bindings, LookNameField)});
    return all;
}

void DeleteLook(const QString& location, const QString& name) {
    Database database(location, ConfigurationSchema());
    // All are opened before a record is deleted, so that a table that is missing leaves everything.
    Recordset bindings = OpenBindings(database);
    Recordset charts = database.OpenRecordset(ChartLook().name);
    Recordset axes = database.OpenRecordset(AxesLook().name);
    Recordset series = database.OpenRecordset(SeriesLook().name);
    Recordset columns = database.OpenRecordset(ColumnsLook().name);
    StoredExtras extras(database);
    Database::Writing writing(database, QLatin1String(BindingsTable));
    for (Recordset* records : {&columns, &series, &axes, &bindings}) {
        records->SetIndex(QLatin1String(LookIndexName));
        for (records->Seek({name}); !records->NoMatch(); records->Seek({name})) records->Delete();
    }
    SeekByKey(charts, {name});
    if (!charts.NoMatch()) charts.Delete();
    extras.Delete(name);
    writing.Finish();
}

bool LookExists(const QString& location, const QString& name) {
    Database database(location, ConfigurationSchema());
    Recordset looks = database.OpenRecordset(ChartLook().name);
    SeekByKey(looks, {name});
    return !looks.NoMatch();
}

void ListLooks(const QString& location, QStringList& names) {
    Database database(location, ConfigurationSchema());
    Recordset looks = database.OpenRecordset(ChartLook().name);
    if (looks.RecordCount() == 0) return;
    looks.SetIndex(QLatin1String(PrimaryKeyName));
    for (; !looks.EndOfFile(); looks.MoveNext()) names.append(TextOf(looks, LookNameField));
}

} // namespace QmChart6

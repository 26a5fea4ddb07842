#include "config/StoredLook.h"

#include "config/Catalogue.h"
#include "config/ConfigurationSchema.h"
#include "config/LookNames.h"

#include <utility>

namespace QmChart6 {

StoredLook::StoredLook(Database& database, QString name) : name_(std::move(name)), extras_(database) {
    for (const LookTable* table : {&ChartLook(), &AxesLook(), &SeriesLook(), &ColumnsLook()})
        recordsets_.emplace(table->name, database.OpenRecordset(table->name));
}

bool StoredLook::Find(const LookTable& table, int number) {
    Recordset& records = Of(table);
    records.SetIndex(QLatin1String(PrimaryKeyName));
    if (table.numberField.isEmpty())
        records.Seek({name_});
    else
        records.Seek({name_, number});
    return !records.NoMatch();
}

std::optional<FieldValue> StoredLook::Value(const LookTable& table, const LookField& field) {
    return Of(table).Value(field.name);
}

void StoredLook::Start(const LookTable& table, int number) {
    const bool isThere = Find(table, number);
    Recordset& records = Of(table);
    if (isThere) {
        records.Edit();
        return;
    }
    records.AddNew();
    records.SetValue(QLatin1String(LookNameField), name_);
    if (!table.numberField.isEmpty()) records.SetValue(table.numberField, number);
}

void StoredLook::Set(const LookTable& table, const LookField& field, const FieldValue& value) {
    Of(table).SetValue(field.name, value);
}

void StoredLook::Finish(const LookTable& table) {
    Of(table).Update();
}

void StoredLook::SetExtras(const QmChart6::Extras& extras) {
    if (!extras_.IsThere()) notKept_ = static_cast<int>(extras.size());
    extras_.Replace(name_, extras);
}

namespace {

/// The numbers of a look's records in one of its tables, in key order.
std::vector<int> NumbersOf(Database& database, const LookTable& table, const QString& name) {
    if (table.numberField.isEmpty()) return {0};
    Recordset records = database.OpenRecordset(table.name);
    records.SetIndex(QLatin1String(LookIndexName));
    std::vector<int> numbers;
    for (records.Seek({name}); !records.NoMatch() && !records.EndOfFile(); records.MoveNext()) {
        if (!EqualNames(std::get<QString>(records.Value(QLatin1String(LookNameField))), name)) break;
        numbers.push_back(std::get<std::int16_t>(records.Value(table.numberField)));
    }
    return numbers;
}

} // namespace

namespace {

int ReplaceLook(Database& database, const QString& name, const Look& look) {
    StoredLook stored(database, name);
    for (const LookTable* table : LookTables()) {
        if (table->numberField.isEmpty()) continue;
        Recordset records = database.OpenRecordset(table->name);
        records.SetIndex(QLatin1String(LookIndexName));
        for (records.Seek({name}); !records.NoMatch(); records.Seek({name})) records.Delete();
    }
    CopyLook(look, stored);
    return stored.ValuesNotKept();
}

} // namespace

int WriteWholeLook(Database& database, const QString& name, const Look& look) {
    Database::Writing writing(database, TableOfTurns(database));
    int notKept = 0;
    try {
        notKept = ReplaceLook(database, name, look);
    } catch (...) {
        writing.TakeBack();
        throw;
    }
    writing.Finish();
    return notKept;
}

Look ReadLook(Database& database, const QString& name) {
    StoredLook stored(database, name);
    Look look;
    for (const LookTable* table : LookTables()) {
        for (const int number : NumbersOf(database, *table, name)) {
            if (!stored.Find(*table, number)) continue;
            look.Start(*table, number);
            for (const LookField& field : table->fields)
                if (const auto value = stored.Value(*table, field)) look.Set(*table, field, *value);
        }
    }
    look.SetExtras(stored.Extras());
    return look;
}

} // namespace QmChart6

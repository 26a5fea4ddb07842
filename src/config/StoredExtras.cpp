#include "config/StoredExtras.h"

#include "config/ConfigurationSchema.h"
#include "config/LookFields.h"
#include "config/LookNames.h"

namespace QmChart6 {

namespace {

QString TextIn(Recordset& records, const char* field) {
    return std::get<QString>(records.Value(QLatin1String(field)));
}

ExtraKey KeyIn(Recordset& records) {
    return ExtraKeyOf(TextIn(records, ExtraElementField), TextIn(records, ExtraFieldField));
}

void Write(Recordset& records, const QString& name, const ExtraKey& key, const ExtraValue& value) {
    records.AddNew();
    records.SetValue(QLatin1String(LookNameField), name);
    records.SetValue(QLatin1String(ExtraElementField), ElementText(key));
    records.SetValue(QLatin1String(ExtraFieldField), key.field);
    records.SetValue(QLatin1String(ExtraValueField), ExtraText(value));
    records.Update();
}

} // namespace

StoredExtras::StoredExtras(Database& database)
    : records_(database.OpenRecordsetIfThere(QLatin1String(ExtrasTable))) {}

Extras StoredExtras::Read(const QString& name) {
    Extras extras;
    if (!records_) return extras;
    records_->SetIndex(QLatin1String(LookIndexName));
    for (records_->Seek({name}); !records_->NoMatch() && !records_->EndOfFile(); records_->MoveNext()) {
        if (!EqualNames(TextIn(*records_, LookNameField), name)) break;
        const ExtraKey key = KeyIn(*records_);
        extras.insert_or_assign(key, ExtraOfText(key, TextIn(*records_, ExtraValueField)));
    }
    return extras;
}

void StoredExtras::ForEach(const std::function<void(const QString& name, const ReadOne& read)>& action) {
    if (!records_) return;
    records_->SetIndex(QLatin1String(PrimaryKeyName));
    for (; !records_->EndOfFile(); records_->MoveNext())
        action(TextIn(*records_, LookNameField), [this]() -> std::pair<const ExtraKey, ExtraValue> {
            const ExtraKey key = KeyIn(*records_);
            return {key, ExtraOfText(key, TextIn(*records_, ExtraValueField))};
        });
}

void StoredExtras::Replace(const QString& name, const Extras& extras) {
    Delete(name);
    if (!records_) return;
    for (const auto& [key, value] : extras) Write(*records_, name, key, value);
}

void StoredExtras::Delete(const QString& name) {
    if (!records_) return;
    records_->SetIndex(QLatin1String(LookIndexName));
    for (records_->Seek({name}); !records_->NoMatch(); records_->Seek({name})) records_->Delete();
}

} // namespace QmChart6

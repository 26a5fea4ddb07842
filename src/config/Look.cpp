#include "config/Look.h"

namespace QmChart6 {

const std::vector<const LookTable*>& LookTables() {
    static const std::vector<const LookTable*> tables{&ChartLook(), &ColumnsLook(), &SeriesLook(),
                                                      &AxesLook()};
    return tables;
}

const Look::Records& Look::Of(const LookTable& table) const {
    static const Records none;
    const auto found = tables_.find(table.name);
    return found == tables_.end() ? none : found->second;
}

bool Look::Find(const LookTable& table, int number) {
    current_[table.name] = number;
    return Of(table).contains(number);
}

std::optional<FieldValue> Look::Value(const LookTable& table, const LookField& field) {
    const Record& record = Of(table).at(current_.at(table.name));
    const auto found = record.find(field.name);
    return found == record.end() ? std::nullopt : std::optional(found->second);
}

void Look::Start(const LookTable& table, int number) {
    current_[table.name] = number;
    (void)Of(table)[number];
}

void Look::Set(const LookTable& table, const LookField& field, const FieldValue& value) {
    Of(table)[current_.at(table.name)][field.name] = ToKind(value, field.kind, field.name);
}

void Look::Finish(const LookTable& /*table*/) {}

void CopyLook(const Look& look, LookWriter& writer) {
    for (const LookTable* table : LookTables()) {
        for (const auto& [number, record] : look.Of(*table)) {
            writer.Start(*table, number);
            for (const auto& [name, value] : record) writer.Set(*table, table->Field(name), value);
            writer.Finish(*table);
        }
    }
    writer.SetExtras(look.SaidBeyond());
}

} // namespace QmChart6

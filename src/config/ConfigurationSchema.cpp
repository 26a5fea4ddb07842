#include "config/ConfigurationSchema.h"

#include "config/Look.h"

namespace QmChart6 {

namespace {

const QString& NameField() {
    static const QString name = QLatin1String(LookNameField);
    return name;
}

TableDescription Bindings() {
    const QString id = QLatin1String(ChartIdField);
    return {.name = QLatin1String(BindingsTable),
            .fields = {{id, FieldKind::Text}, {NameField(), FieldKind::Text}},
            .indexes = {{QLatin1String(PrimaryKeyName), {id}, true},
                        {QLatin1String(LookIndexName), {NameField()}, false}}};
}

TableDescription TableOf(const LookTable& look) {
    TableDescription table{.name = look.name, .fields = {{NameField(), FieldKind::Text}}, .indexes = {}};
    QStringList key{NameField()};
    if (!look.numberField.isEmpty()) {
        table.fields.push_back({look.numberField, FieldKind::Integer});
        key.append(look.numberField);
    }
    for (const LookField& field : look.fields) table.fields.push_back({field.name, field.kind});
    table.indexes.push_back({QLatin1String(PrimaryKeyName), key, true});
    if (!look.numberField.isEmpty())
        table.indexes.push_back({QLatin1String(LookIndexName), {NameField()}, false});
    return table;
}

Schema MakeSchema() {
    Schema schema{Bindings()};
    for (const LookTable* look : LookTables()) schema.push_back(TableOf(*look));
    return schema;
}

} // namespace

const Schema& ConfigurationSchema() {
    static const Schema schema = MakeSchema();
    return schema;
}

} // namespace QmChart6

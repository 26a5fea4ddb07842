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

TableDescription ExtrasDescription() {
    const QString element = QLatin1String(ExtraElementField);
    const QString field = QLatin1String(ExtraFieldField);
    return {.name = QLatin1String(ExtrasTable),
            .fields = {{NameField(), FieldKind::Text},
                       {element, FieldKind::Text},
                       {field, FieldKind::Text},
                       {QLatin1String(ExtraValueField), FieldKind::Text}},
            .indexes = {{QLatin1String(PrimaryKeyName), {NameField(), element, field}, true},
                        {QLatin1String(LookIndexName), {NameField()}, false}}};
}

Schema MakeSchema() {
    Schema schema{Bindings()};
    for (const LookTable* look : LookTables()) schema.push_back(TableOf(*look));
    schema.push_back(ExtrasDescription());
    return schema;
}

} // namespace

const Schema& ConfigurationSchema() {
    static const Schema schema = MakeSchema();
    return schema;
}

} // namespace QmChart6

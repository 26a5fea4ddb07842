#include "database/Schema.h"

#include "qmchart6/RuntimeError.h"

#include <algorithm>

namespace QmChart6 {

namespace {

template<class Named>
const Named* Find(const std::vector<Named>& all, const QString& name) {
    const auto found = std::find_if(all.begin(), all.end(), [&](const Named& one) {
        return one.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == all.end() ? nullptr : &*found;
}

} // namespace

const FieldDescription& TableDescription::Field(const QString& field) const {
    const FieldDescription* found = Find(fields, field);
    if (found == nullptr)
        throw RuntimeError(ErrorNumber::FieldNotFound,
                           QStringLiteral("table \"%1\" has no field \"%2\"").arg(name, field));
    return *found;
}

const IndexDescription& TableDescription::Index(const QString& index) const {
    const IndexDescription* found = Find(indexes, index);
    if (found == nullptr)
        throw RuntimeError(ErrorNumber::IndexNotFound,
                           QStringLiteral("table \"%1\" has no index \"%2\"").arg(name, index));
    return *found;
}

const TableDescription& TableOf(const Schema& schema, const QString& table) {
    const TableDescription* found = Find(schema, table);
    if (found == nullptr)
        throw RuntimeError(ErrorNumber::TableNotFound, QStringLiteral("there is no table \"%1\"").arg(table));
    return *found;
}

} // namespace QmChart6

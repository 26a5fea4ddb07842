#include "database/Recordset.h"

#include "database/Connection.h"

#include <QSqlQuery>

#include <algorithm>

namespace QmChart6 {

namespace {

QSet<QString> Names(Connection& connection, const QString& statement, const QVariantList& parameters) {
    QSet<QString> names;
    QSqlQuery& query = connection.Run(statement, parameters);
    while (connection.Next(query)) names.insert(query.value(0).toString().toLower());
    query.finish();
    return names;
}

QVariantList ToDriver(const std::vector<FieldValue>& values) {
    QVariantList list;
    for (const FieldValue& value : values) list.append(QmChart6::ToDriver(value));
    return list;
}

} // namespace

Recordset::Recordset(Connection& connection, const TableDescription& table)
    : connection_(&connection), table_(&table) {
    const Dialect& engine = connection.Engine();
    columns_ = Names(connection, engine.ColumnsQuery(), engine.CatalogueParameters(table.name));
    if (columns_.isEmpty())
        throw RuntimeError(ErrorNumber::TableNotFound,
                           QStringLiteral("the database has no table \"%1\"").arg(table.name));
    indexes_ = Names(connection, engine.IndexesQuery(), engine.CatalogueParameters(table.name));
    QStringList columns;
    for (const FieldDescription& field : table.fields) {
        if (!columns_.contains(field.name.toLower())) continue;
        fields_.append(field.name);
        columns.append(Quoted(field.name));
    }
    selectRecords_ =
        QStringLiteral("SELECT %1 FROM %2").arg(columns.join(QStringLiteral(", ")), engine.Table(table.name));
}

const FieldDescription& Recordset::FieldThatIsThere(const QString& name) const {
    const FieldDescription& field = table_->Field(name);
    if (!columns_.contains(field.name.toLower()))
        throw RuntimeError(
            ErrorNumber::FieldNotFound,
            QStringLiteral("the database's table \"%1\" has no field \"%2\"").arg(table_->name, field.name));
    return field;
}

void Recordset::SetIndex(const QString& name) {
    const IndexDescription& index = table_->Index(name);
    if (!indexes_.contains(table_->IndexName(index).toLower()))
        throw RuntimeError(ErrorNumber::IndexNotFound,
                           QStringLiteral("the database's table \"%1\" has no index \"%2\"")
                               .arg(table_->name, table_->IndexName(index)));
    index_ = &index;
    Leave(false);
}

void Recordset::Leave(bool lost) {
    keys_.reset();
    current_.reset();
    record_.clear();
    lost_ = lost;
}

QString Recordset::SelectKeys() const {
    QStringList columns;
    for (const QString& field : table_->PrimaryKey().fields)
        columns.append(Quoted(FieldThatIsThere(field).name));
    return QStringLiteral("SELECT %1 FROM %2")
        .arg(columns.join(QStringLiteral(", ")), connection_->Engine().Table(table_->name));
}

QString Recordset::OrderBy() const {
    QStringList keys;
    for (const IndexDescription* index : {index_, &table_->PrimaryKey()})
        for (const QString& field : index->fields)
            keys.append(connection_->Engine().Key(table_->Field(field)));
    keys.removeDuplicates();
    return QStringLiteral(" ORDER BY ") + keys.join(QStringLiteral(", "));
}

QString Recordset::Where(const IndexDescription& index) const {
    QStringList terms;
    for (const QString& name : index.fields) {
        const FieldDescription& field = FieldThatIsThere(name);
        terms.append(connection_->Engine().Key(field) + QStringLiteral(" = ") +
                     connection_->Engine().KeyParameter(field.kind));
    }
    return QStringLiteral(" WHERE ") + terms.join(QStringLiteral(" AND "));
}

Recordset::Key Recordset::ReadKey(const QSqlQuery& query) const {
    Key key;
    int column = 0;
    for (const QString& field : table_->PrimaryKey().fields)
        key.push_back(FromDriver(query.value(column++), table_->Field(field).kind, field));
    return key;
}

Recordset::Key Recordset::RecordKey() const {
    Key key;
    for (const QString& field : table_->PrimaryKey().fields)
        key.push_back(FromDriver(record_.value(field), table_->Field(field).kind, field));
    return key;
}

void Recordset::ReadRecord(const QSqlQuery& query) {
    int column = 0;
    for (const QString& field : fields_) record_.insert(field, query.value(column++));
}

void Recordset::Seek(const std::vector<FieldValue>& keys) {
    if (index_ == nullptr)
        throw RuntimeError(ErrorNumber::NoCurrentIndex,
                           QStringLiteral("an index of \"%1\" must be chosen first").arg(table_->name));
    if (keys.size() != static_cast<std::size_t>(index_->fields.size()))
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("index \"%1\" of \"%2\" takes %3 keys")
                               .arg(index_->name, table_->name)
                               .arg(index_->fields.size()));
    std::vector<FieldValue> sought;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const FieldDescription& field = table_->Field(index_->fields[static_cast<qsizetype>(i)]);
        sought.push_back(ToKind(keys[i], field.kind, field.name));
    }
    Leave(true);
    // A record that is sought by its own key is read at once: a server is asked half as often.
    const bool whole = index_ == &table_->PrimaryKey();
    QSqlQuery& query = connection_->Run((whole ? selectRecords_ : SelectKeys()) + Where(*index_) + OrderBy() +
                                            QStringLiteral(" LIMIT 1"),
                                        ToDriver(sought));
    if (connection_->Next(query)) {
        if (whole) ReadRecord(query);
        current_ = whole ? RecordKey() : ReadKey(query);
    }
    query.finish();
    noMatch_ = lost_ = !current_;
}

void Recordset::FetchKeys() {
    if (keys_) return;
    if (index_ == nullptr) index_ = &table_->PrimaryKey();
    QSqlQuery& query = connection_->Run(SelectKeys() + OrderBy());
    keys_.emplace();
    while (connection_->Next(query)) keys_->push_back(ReadKey(query));
    query.finish();
    position_ = 0;
}

bool Recordset::EndOfFile() {
    if (current_) return false;
    if (lost_) return true;
    FetchKeys();
    return position_ >= keys_->size();
}

void Recordset::MoveNext() {
    const Key key = CurrentKey();
    FetchKeys();
    if (current_)
        position_ = static_cast<std::size_t>(std::find(keys_->begin(), keys_->end(), key) - keys_->begin());
    position_ = std::min(position_ + 1, keys_->size());
    current_.reset();
    record_.clear();
}

int Recordset::RecordCount() {
    QSqlQuery& query = connection_->Run(
        QStringLiteral("SELECT count(*) FROM %1").arg(connection_->Engine().Table(table_->name)));
    const int count = connection_->Next(query) ? query.value(0).toInt() : 0;
    query.finish();
    return count;
}

const Recordset::Key& Recordset::CurrentKey() {
    if (current_) return *current_;
    // Nothing was sought since the index was chosen: the records are being walked.
    if (!lost_) FetchKeys();
    if (lost_ || position_ >= keys_->size())
        throw RuntimeError(ErrorNumber::NoCurrentRecord,
                           QStringLiteral("table \"%1\" stands at no record").arg(table_->name));
    return (*keys_)[position_];
}

void Recordset::FetchRecord() {
    if (!record_.isEmpty()) return;
    QSqlQuery& query = connection_->Run(selectRecords_ + Where(table_->PrimaryKey()), ToDriver(CurrentKey()));
    const bool found = connection_->Next(query);
    if (found) ReadRecord(query);
    query.finish();
    if (!found)
        throw RuntimeError(ErrorNumber::RecordDeleted,
                           QStringLiteral("somebody else deleted it from \"%1\"").arg(table_->name));
}

FieldValue Recordset::Value(const QString& name) {
    const FieldDescription& field = FieldThatIsThere(name);
    for (const auto& [changed, value] : changes_)
        if (changed == &field) return value;
    const qsizetype inKey = table_->PrimaryKey().fields.indexOf(field.name);
    if (inKey >= 0) return CurrentKey()[static_cast<std::size_t>(inKey)];
    FetchRecord();
    return FromDriver(record_.value(field.name), field.kind, field.name);
}

void Recordset::AddNew() {
    changes_.clear();
    editing_ = Editing::New;
}

void Recordset::Edit() {
    (void)CurrentKey();
    changes_.clear();
    editing_ = Editing::Present;
}

void Recordset::SetValue(const QString& name, const FieldValue& value) {
    if (editing_ == Editing::No)
        throw RuntimeError(ErrorNumber::UpdateWithoutEdit,
                           QStringLiteral("a record of \"%1\" must be started first").arg(table_->name));
    const FieldDescription& field = FieldThatIsThere(name);
    FieldValue held = ToKind(value, field.kind, field.name);
    for (auto& [changed, present] : changes_) {
        if (changed != &field) continue;
        present = std::move(held);
        return;
    }
    changes_.append({&field, std::move(held)});
}

void Recordset::Update() {
    if (editing_ == Editing::No)
        throw RuntimeError(ErrorNumber::UpdateWithoutEdit,
                           QStringLiteral("a record of \"%1\" must be started first").arg(table_->name));
    if (editing_ == Editing::New)
        Insert();
    else if (!changes_.isEmpty())
        Change();
    editing_ = Editing::No;
    changes_.clear();
    record_.clear();
    keys_.reset();
}

void Recordset::Insert() {
    QStringList columns;
    QStringList places;
    QVariantList values;
    for (const auto& [field, value] : changes_) {
        columns.append(Quoted(field->name));
        places.append(QStringLiteral("?"));
        values.append(QmChart6::ToDriver(value));
    }
    connection_->Write(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                           .arg(connection_->Engine().Table(table_->name), columns.join(QStringLiteral(", ")),
                                places.join(QStringLiteral(", "))),
                       values);
}

void Recordset::Change() {
    QStringList places;
    QVariantList values;
    for (const auto& [field, value] : changes_) {
        places.append(Quoted(field->name) + QStringLiteral(" = ?"));
        values.append(QmChart6::ToDriver(value));
    }
    const int changed = connection_->Write(
        QStringLiteral("UPDATE %1 SET %2")
                .arg(connection_->Engine().Table(table_->name), places.join(QStringLiteral(", "))) +
            Where(table_->PrimaryKey()),
        values + ToDriver(CurrentKey()));
    if (changed > 0) return;
    record_.clear();
    throw RuntimeError(ErrorNumber::RecordDeleted,
                       QStringLiteral("somebody else deleted it from \"%1\"").arg(table_->name));
}

void Recordset::Delete() {
    const int changed =
        connection_->Write(QStringLiteral("DELETE FROM %1").arg(connection_->Engine().Table(table_->name)) +
                               Where(table_->PrimaryKey()),
                           ToDriver(CurrentKey()));
    if (changed == 0)
        throw RuntimeError(ErrorNumber::RecordDeleted,
                           QStringLiteral("somebody else deleted it from \"%1\"").arg(table_->name));
    Leave(true);
}

} // namespace QmChart6

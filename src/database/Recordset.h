#pragma once

#include "database/FieldValue.h"
#include "database/Schema.h"

#include <QHash>
#include <QSet>
#include <QVariant>

#include <optional>
#include <utility>
#include <vector>

class QSqlQuery;

namespace QmChart6 {

class Connection;

/// The records of one table, by one of its indexes: sought by key or walked in key order, read field by
/// field, added, edited and deleted one at a time. It works while its Database is open; errors as Database
/// has them, and besides those named here 3265 for a field that is not there.
class Recordset {
public:
    Recordset(Connection& connection, const TableDescription& table);

    /// Makes an index the current one and goes to its first record. Raises 3015 where it is not there.
    void SetIndex(const QString& name);

    /// Goes to the first record with these keys: one for each field of the current index. Raises 3019 without
    /// an index, 5 for another number of keys.
    void Seek(const std::vector<FieldValue>& keys);
    /// The last Seek found nothing.
    [[nodiscard]] bool NoMatch() const { return noMatch_; }

    /// Behind the last record.
    [[nodiscard]] bool EndOfFile();
    /// Raises 3021 behind the last record.
    void MoveNext();
    [[nodiscard]] int RecordCount();

    /// A field of the current record, or of the one being made; raises 3021 without one, 94 for an empty
    /// field.
    [[nodiscard]] FieldValue Value(const QString& field);

    /// Starts a new record; Edit changes the current one, raising 3021 where there is none.
    void AddNew();
    void Edit();
    /// Sets a field of the record that AddNew or Edit started, of the field's kind: numbers out of its range
    /// raise 6, another kind 13. Raises 3020 without AddNew or Edit.
    void SetValue(const QString& field, const FieldValue& value);
    /// Writes the record. Raises 3020 without AddNew or Edit, 3022 where the key is taken, 3167 where
    /// somebody deleted it meanwhile.
    void Update();
    /// Deletes the current record. Raises 3021 without one.
    void Delete();

private:
    enum class Editing { No, New, Present };
    using Key = std::vector<FieldValue>;

    [[nodiscard]] const FieldDescription& FieldThatIsThere(const QString& name) const;
    [[nodiscard]] Key ReadKey(const QSqlQuery& query) const;
    [[nodiscard]] Key RecordKey() const;
    void ReadRecord(const QSqlQuery& query);
    [[nodiscard]] QString SelectKeys() const;
    [[nodiscard]] QString OrderBy() const;
    [[nodiscard]] QString Where(const IndexDescription& index) const;
    [[nodiscard]] const Key& CurrentKey();
    void Leave(bool lost);
    void FetchKeys();
    void FetchRecord();
    void Insert();
    void Change();

    Connection* connection_;
    const TableDescription* table_;
    QSet<QString> columns_; ///< the names that the database has, in small letters
    QSet<QString> indexes_;
    QStringList fields_; ///< those of the table's fields that the database has
    QString selectRecords_;
    const IndexDescription* index_ = nullptr;

    /// The records' keys in the order of the index, once they are walked.
    std::optional<std::vector<Key>> keys_;
    std::size_t position_ = 0;
    std::optional<Key> current_;
    bool noMatch_ = false;
    bool lost_ = false;               ///< at no record: nothing was found, or it was deleted
    QHash<QString, QVariant> record_; ///< the current record, where it was read

    Editing editing_ = Editing::No;
    QList<std::pair<const FieldDescription*, FieldValue>> changes_;
};

} // namespace QmChart6

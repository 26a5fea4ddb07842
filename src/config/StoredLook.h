#pragma once

#include "config/Look.h"
#include "config/StoredExtras.h"

#include <map>

namespace QmChart6 {

/// The records of looks in the configuration database, opened together.
class StoredLook : public LookReader, public LookWriter {
public:
    /// The look of that name, which need not be there.
    StoredLook(Database& database, QString name);

    bool Find(const LookTable& table, int number) override;
    std::optional<FieldValue> Value(const LookTable& table, const LookField& field) override;
    /// Adds the record, or edits it where it is there; its key stays as it was first written.
    void Start(const LookTable& table, int number) override;
    void Set(const LookTable& table, const LookField& field, const FieldValue& value) override;
    void Finish(const LookTable& table) override;
    QmChart6::Extras Extras() override { return extras_.Read(name_); }
    void SetExtras(const QmChart6::Extras& extras) override;
    /// How many values SetExtras did not keep, since the database has no place for them.
    [[nodiscard]] int ValuesNotKept() const { return notKept_; }

private:
    [[nodiscard]] Recordset& Of(const LookTable& table) { return recordsets_.at(table.name); }

    QString name_;
    std::map<QString, Recordset> recordsets_;
    StoredExtras extras_;
    int notKept_ = 0;
};

/// Makes the look of that name this one, whole or, where that fails, not at all: what there was of it and is
/// not in this one goes. Gives how many values beyond the fields of its tables the database has no place for.
int WriteWholeLook(Database& database, const QString& name, const Look& look);

/// The whole look of that name as it is stored; empty where there is none.
Look ReadLook(Database& database, const QString& name);

} // namespace QmChart6

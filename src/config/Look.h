#pragma once

#include "config/LookFields.h"

#include <map>
#include <optional>

namespace QmChart6 {

/// Where a look is read from, record by record.
class LookReader {
public:
    virtual ~LookReader() = default;
    /// Goes to a record; false where the look has none of that number.
    virtual bool Find(const LookTable& table, int number) = 0;
    /// A field of the record found last in that table; nothing where the look leaves it as it is.
    virtual std::optional<FieldValue> Value(const LookTable& table, const LookField& field) = 0;
};

/// Where a look is written to, one record after the other.
class LookWriter {
public:
    virtual ~LookWriter() = default;
    virtual void Start(const LookTable& table, int number) = 0;
    virtual void Set(const LookTable& table, const LookField& field, const FieldValue& value) = 0;
    virtual void Finish(const LookTable& table) = 0;
};

/// Writes a look: the whole chart, its columns, its series and its four axes.
void CaptureLook(LookState look, LookWriter& writer);

/// Gives a look what is read, as far as its chart has such series and columns. `loadTitles`: the texts of the
/// titles and the names of the columns too. False, and nothing done, where there is no look. What fails
/// leaves what came before it.
bool ApplyLook(LookState& look, LookReader& reader, bool loadTitles);

/// The fields of a look that are given, by their names, for each record: all of them or some.
class Look : public LookReader, public LookWriter {
public:
    using Record = std::map<QString, FieldValue>;
    using Records = std::map<int, Record>;

    [[nodiscard]] Records& Of(const LookTable& table) { return tables_[table.name]; }
    [[nodiscard]] const Records& Of(const LookTable& table) const;

    bool Find(const LookTable& table, int number) override;
    std::optional<FieldValue> Value(const LookTable& table, const LookField& field) override;
    void Start(const LookTable& table, int number) override;
    void Set(const LookTable& table, const LookField& field, const FieldValue& value) override;
    void Finish(const LookTable& table) override;

    friend bool operator==(const Look& a, const Look& b) { return a.tables_ == b.tables_; }

private:
    std::map<QString, Records> tables_;
    std::map<QString, int> current_;
};

/// Writes all records of a look.
void CopyLook(const Look& look, LookWriter& writer);

/// The tables of a look, the whole chart's first.
const std::vector<const LookTable*>& LookTables();

} // namespace QmChart6

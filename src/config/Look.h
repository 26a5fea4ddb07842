#pragma once

#include "config/LookExtras.h"
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
    /// What the look says beyond the fields of its tables.
    virtual QmChart6::Extras Extras() { return {}; }
};

/// Where a look is written to, one record after the other.
class LookWriter {
public:
    virtual ~LookWriter() = default;
    virtual void Start(const LookTable& table, int number) = 0;
    virtual void Set(const LookTable& table, const LookField& field, const FieldValue& value) = 0;
    virtual void Finish(const LookTable& table) = 0;
    /// All that the look says beyond them, in place of what it said before.
    virtual void SetExtras(const QmChart6::Extras& extras) = 0;
};

/// Writes a look: the whole chart, its columns, its series, its four axes, and what it has beyond them.
void CaptureLook(LookState look, LookWriter& writer);

/// Gives a look what is read, as far as its chart has such series and columns. `loadTitles`: the texts of the
/// titles and the names of the columns too. What another look said beyond the fields of its tables is taken
/// back first, what this one says comes last. False, and nothing done, where there is no look. What fails
/// leaves what came before it.
bool ApplyLook(LookState& look, LookReader& reader, bool loadTitles);

/// The fields of a look that are given, by their names, for each record: all of them or some; and what it
/// says beyond them.
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
    QmChart6::Extras Extras() override { return extras_; }
    [[nodiscard]] const QmChart6::Extras& SaidBeyond() const { return extras_; }
    void SetExtras(const QmChart6::Extras& extras) override { extras_ = extras; }

    friend bool operator==(const Look& a, const Look& b) {
        return a.tables_ == b.tables_ && a.extras_ == b.extras_;
    }

private:
    std::map<QString, Records> tables_;
    QmChart6::Extras extras_;
    std::map<QString, int> current_;
};

/// Writes all records of a look.
void CopyLook(const Look& look, LookWriter& writer);

/// The tables of a look, the whole chart's first.
const std::vector<const LookTable*>& LookTables();

} // namespace QmChart6

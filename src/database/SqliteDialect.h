#pragma once

#include "database/Dialect.h"

namespace QmChart6 {

/// An embedded database in one file, read and written in place, never created here. Each write is on the disk
/// when its statement returns.
class SqliteDialect : public Dialect {
public:
    explicit SqliteDialect(DatabaseLocation location);

    [[nodiscard]] QString Driver() const override;
    void Prepare(QSqlDatabase& connection) const override;
    [[nodiscard]] QStringList Greeting() const override;
    [[nodiscard]] QString Farewell() const override;
    [[nodiscard]] QString Table(const QString& table) const override;
    [[nodiscard]] QString ColumnType(FieldKind kind) const override;
    [[nodiscard]] QString Key(const FieldDescription& field) const override;
    [[nodiscard]] QString KeyParameter(FieldKind kind) const override;
    [[nodiscard]] QString ProbeQuery() const override;
    [[nodiscard]] QString ColumnsQuery() const override;
    [[nodiscard]] QString IndexesQuery() const override;
    [[nodiscard]] QVariantList ProbeParameters() const override;
    [[nodiscard]] QVariantList CatalogueParameters(const QString& table) const override;
    [[nodiscard]] QStringList BeginWriting(const TableDescription& first) const override;
    [[nodiscard]] QStringList BeginReading() const override;
    [[nodiscard]] QString KeepWrite() const override;
    [[nodiscard]] QString TakeWriteBack() const override;
    [[nodiscard]] bool IsBusy(const QSqlError& error) const override;
    [[nodiscard]] RuntimeError Translate(const QSqlError& error) const override;

private:
    DatabaseLocation location_;
};

} // namespace QmChart6

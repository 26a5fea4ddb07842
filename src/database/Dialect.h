#pragma once

#include "database/Location.h"
#include "database/Schema.h"

#include "qmchart6/RuntimeError.h"

#include <QVariantList>

#include <memory>

class QSqlDatabase;
class QSqlError;

namespace QmChart6 {

/// What differs between the engines behind the tables. Names come from a Schema and are quoted here; values
/// are always parameters.
class Dialect {
public:
    virtual ~Dialect() = default;

    /// The name of the Qt driver.
    [[nodiscard]] virtual QString Driver() const = 0;
    /// Raises the error of a place where no database can be; sets the connection up for the place.
    virtual void Prepare(QSqlDatabase& connection) const = 0;
    /// Statements to run once a connection is open.
    [[nodiscard]] virtual QStringList Greeting() const = 0;

    /// A statement to run before a connection that wrote is closed; "" for none. It may fail.
    [[nodiscard]] virtual QString Farewell() const = 0;

    /// A table's name as statements have it.
    [[nodiscard]] virtual QString Table(const QString& table) const = 0;
    [[nodiscard]] virtual QString ColumnType(FieldKind kind) const = 0;
    /// An index' expression for a field, and that of a parameter which is compared to it.
    [[nodiscard]] virtual QString Key(const FieldDescription& field) const = 0;
    [[nodiscard]] virtual QString KeyParameter(FieldKind kind) const = 0;

    /// Finds nothing where there is no such database; the first look at what was opened.
    [[nodiscard]] virtual QString ProbeQuery() const = 0;
    /// The names of a table's columns, and of its indexes.
    [[nodiscard]] virtual QString ColumnsQuery() const = 0;
    [[nodiscard]] virtual QString IndexesQuery() const = 0;
    /// What those three take: the probe first, then the table's.
    [[nodiscard]] virtual QVariantList ProbeParameters() const = 0;
    [[nodiscard]] virtual QVariantList CatalogueParameters(const QString& table) const = 0;

    [[nodiscard]] virtual QStringList BeginWriting(const TableDescription& first) const = 0;
    [[nodiscard]] virtual QStringList BeginReading() const = 0;
    /// What makes one write of a transaction stay when a later statement fails, and what takes that one back.
    [[nodiscard]] virtual QString KeepWrite() const = 0;
    [[nodiscard]] virtual QString TakeWriteBack() const = 0;

    /// Whether the error says that somebody else is at work and another try may succeed.
    [[nodiscard]] virtual bool IsBusy(const QSqlError& error) const = 0;
    /// The error as the product tells it.
    [[nodiscard]] virtual RuntimeError Translate(const QSqlError& error) const = 0;
};

/// A name between double quotes.
[[nodiscard]] QString Quoted(const QString& name);

} // namespace QmChart6

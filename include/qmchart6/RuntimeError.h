#pragma once

#include "qmchart6/Export.h"

#include <QString>

#include <stdexcept>

namespace QmChart6 {

/// The numbers of the errors that reach a host. They are stable: a host may branch on them.
enum class ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    FileAlreadyExists = 58,
    DiskFull = 61,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    InvalidUseOfNull = 94,
    InvalidFileFormat = 321,
    ResourceNotFound = 326,
    InvalidPropertyValue = 380,
    ActionNotSupported = 445,
    PrinterError = 482,
    IndexNotFound = 3015,
    NoCurrentIndex = 3019,
    UpdateWithoutEdit = 3020,
    NoCurrentRecord = 3021,
    DuplicateKey = 3022,
    DatabaseFileNotFound = 3024,
    PathNotValid = 3044,
    LockedByAnotherUser = 3050,
    TableNotFound = 3078,
    DatabaseRefused = 3146,
    ServerNotReached = 3151,
    RecordDeleted = 3167,
    FieldNotFound = 3265,
    NotADatabase = 3343,
};

/// A failure that reaches the host: a stable number and a sentence that says what was expected.
class QMCHART6_EXPORT RuntimeError : public std::runtime_error {
public:
    /// The description is the number's own sentence, followed by `detail` where one is given.
    explicit RuntimeError(ErrorNumber number, const QString& detail = {});
    ~RuntimeError() override;

    [[nodiscard]] int Number() const { return number_; }
    [[nodiscard]] const QString& Description() const { return description_; }
    /// "Error n: description", as message boxes and the command line show it.
    [[nodiscard]] QString Message() const;

private:
    int number_;
    QString description_;
};

} // namespace QmChart6

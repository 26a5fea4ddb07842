#include "qmchart6/RuntimeError.h"

namespace QmChart6 {

namespace {

QString Sentence(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::InvalidProcedureCall:
        return QStringLiteral("Invalid procedure call or argument");
    case ErrorNumber::Overflow:
        return QStringLiteral("Overflow");
    case ErrorNumber::SubscriptOutOfRange:
        return QStringLiteral("Subscript out of range");
    case ErrorNumber::TypeMismatch:
        return QStringLiteral("Type mismatch");
    case ErrorNumber::FileNotFound:
        return QStringLiteral("File not found");
    case ErrorNumber::FileAlreadyExists:
        return QStringLiteral("File already exists");
    case ErrorNumber::DiskFull:
        return QStringLiteral("Disk full");
    case ErrorNumber::PermissionDenied:
        return QStringLiteral("Permission denied");
    case ErrorNumber::PathFileAccess:
        return QStringLiteral("Path/File access error");
    case ErrorNumber::PathNotFound:
        return QStringLiteral("Path not found");
    case ErrorNumber::ObjectNotSet:
        return QStringLiteral("Object variable not set");
    case ErrorNumber::InvalidUseOfNull:
        return QStringLiteral("Invalid use of Null");
    case ErrorNumber::InvalidFileFormat:
        return QStringLiteral("Invalid file format");
    case ErrorNumber::ResourceNotFound:
        return QStringLiteral("Resource not found");
    case ErrorNumber::InvalidPropertyValue:
        return QStringLiteral("Invalid property value");
    case ErrorNumber::ActionNotSupported:
        return QStringLiteral("Object doesn't support this action");
    case ErrorNumber::PrinterError:
        return QStringLiteral("Printer error");
    case ErrorNumber::IndexNotFound:
        return QStringLiteral("Index not found");
    case ErrorNumber::NoCurrentIndex:
        return QStringLiteral("No current index");
    case ErrorNumber::UpdateWithoutEdit:
        return QStringLiteral("Update without AddNew or Edit");
    case ErrorNumber::NoCurrentRecord:
        return QStringLiteral("No current record");
    case ErrorNumber::DuplicateKey:
        return QStringLiteral("Duplicate key");
    case ErrorNumber::DatabaseFileNotFound:
        return QStringLiteral("Database file not found");
    case ErrorNumber::PathNotValid:
        return QStringLiteral("Not a valid path");
    case ErrorNumber::LockedByAnotherUser:
        return QStringLiteral("Locked by another user");
    case ErrorNumber::TableNotFound:
        return QStringLiteral("Table not found");
    case ErrorNumber::DatabaseRefused:
        return QStringLiteral("The database refused");
    case ErrorNumber::ServerNotReached:
        return QStringLiteral("The database server cannot be reached");
    case ErrorNumber::RecordDeleted:
        return QStringLiteral("Record is deleted");
    case ErrorNumber::FieldNotFound:
        return QStringLiteral("Field not found");
    case ErrorNumber::NotADatabase:
        return QStringLiteral("Not a database of this kind");
    }
    return QStringLiteral("Unknown error");
}

QString Describe(ErrorNumber number, const QString& detail) {
    return detail.isEmpty() ? Sentence(number) : Sentence(number) + QStringLiteral(": ") + detail;
}

} // namespace

RuntimeError::RuntimeError(ErrorNumber number, const QString& detail)
    : std::runtime_error(Describe(number, detail).toStdString()), number_(static_cast<int>(number)),
      description_(Describe(number, detail)) {}

RuntimeError::~RuntimeError() = default;

QString RuntimeError::Message() const {
    return QStringLiteral("Error %1: ").arg(number_) + description_;
}

} // namespace QmChart6

#pragma once

#include <QString>

#include <optional>

namespace QmChart6 {

/// A database on a PostgreSQL server, and the schema in it that holds the tables.
struct ServerLocation {
    QString host;
    int port = 5432;
    QString user;     ///< "" for the account's own name
    QString password; ///< "" for what the account's password file says
    QString database;
    QString schema;
};

/// Where the tables are: a file, or a schema on a server.
struct DatabaseLocation {
    QString text; ///< as it was given, but for a password; for messages
    QString file; ///< the file's absolute path
    std::optional<ServerLocation> server;
};

/// Whether both name the same tables, however the file is reached.
bool AreOnePlace(const DatabaseLocation& one, const DatabaseLocation& other);

/// Raises 70 where this account may not look whether the file is there.
void RequireSearchable(const DatabaseLocation& location);

/// Understands a path, or "postgresql://user@host:port/database/schema". Raises 3044.
DatabaseLocation ParseLocation(const QString& text);

} // namespace QmChart6
